#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

namespace akarix {

/// One of several choices in a frame; arrow keys move the choice, Enter leaves for the next control.
class OptionButton : public QRadioButton {
    Q_OBJECT

 public:
    explicit OptionButton(const QString& caption = {}, QWidget* parent = nullptr);

    bool Value() const { return isChecked(); }
    void SetValue(bool chosen) { setChecked(chosen); }
    void SetCaption(const QString& caption);

 signals:
    /// It has become the chosen one.
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

/// A border with a caption around controls that belong together; the options in it exclude each other.
class Frame : public QGroupBox {
    Q_OBJECT

 public:
    explicit Frame(const QString& caption = {}, QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);

 private:
    QString caption_;
};

}  // namespace akarix
