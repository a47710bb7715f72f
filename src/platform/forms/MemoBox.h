#pragma once

#include <QPlainTextEdit>

#include "platform/forms/KeyEvent.h"

namespace akarix {

/// A text box of several lines. KeyDown may swallow any key; Enter otherwise begins a line.
class MemoBox : public QPlainTextEdit {
    Q_OBJECT

 public:
    explicit MemoBox(QWidget* parent = nullptr);

    /// Lines are separated by CR LF, as in the classic control.
    QString Text() const;
    void SetText(const QString& text);

 signals:
    void KeyDown(akarix::KeyEvent& event);

 protected:
    bool event(QEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

 private:
    bool composing_ = false;
};

}  // namespace akarix
