#pragma once

#include <QCheckBox>
#include <QRadioButton>

namespace akarix {

/// One of several choices in a frame; arrow keys move the choice, Enter leaves for the next control.
class OptionButton : public QRadioButton {
    Q_OBJECT

 public:
    explicit OptionButton(const QString& caption = {}, QWidget* parent = nullptr);

    bool Value() const { return isChecked(); }
    void SetValue(bool chosen) { setChecked(chosen); }
    void SetCaption(const QString& caption) { setText(caption); }

 signals:
    void Click();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// A tick; Value is 1 or 0.
class CheckBox : public QCheckBox {
    Q_OBJECT

 public:
    explicit CheckBox(const QString& caption = {}, QWidget* parent = nullptr);

    int Value() const { return isChecked() ? 1 : 0; }
    void SetValue(int value) { setChecked(value != 0); }

 signals:
    void Click();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace akarix
