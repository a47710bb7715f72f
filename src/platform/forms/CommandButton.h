#pragma once

#include <QPushButton>

#include "platform/forms/KeyEvent.h"

namespace akarix {

/// What a press leads to. The look sets apart what keeps the work and what takes data away.
enum class ButtonWeight { Plain, Keeps, Removes };

/// A button: pressed by a click, by Space and by Enter (see GuardPresses). The arrow keys walk to its
/// neighbours in tab order.
class CommandButton : public QPushButton {
    Q_OBJECT

 public:
    explicit CommandButton(const QString& caption = {}, QWidget* parent = nullptr);

    QString Caption() const { return text(); }
    void SetCaption(const QString& caption) { setText(caption); }
    /// Told by the caption's last word, which all screens share.
    ButtonWeight weight() const;

 signals:
    void Click();
    void KeyDown(akarix::KeyEvent& event);

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace akarix
