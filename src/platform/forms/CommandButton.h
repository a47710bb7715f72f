#pragma once

#include <QPushButton>

namespace akarix {

/// A button: pressed by a click, by Space and by Enter.
class CommandButton : public QPushButton {
    Q_OBJECT

 public:
    explicit CommandButton(const QString& caption = {}, QWidget* parent = nullptr);

    QString Caption() const { return text(); }
    void SetCaption(const QString& caption) { setText(caption); }

 signals:
    void Click();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace akarix
