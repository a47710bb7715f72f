#include "platform/forms/MemoBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include "platform/forms/Control.h"

namespace akarix {

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent) {
    RegisterControl(this);
    setTabChangesFocus(true);
}

QString MemoBox::Text() const {
    return toPlainText().replace(u'\n', QStringLiteral("\r\n"));
}

void MemoBox::SetText(const QString& text) {
    setPlainText(QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

bool MemoBox::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress && !composing_ &&
        OfferKey(*static_cast<QKeyEvent*>(event), {}, [this](KeyEvent& press) { emit KeyDown(press); })) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void MemoBox::inputMethodEvent(QInputMethodEvent* event) {
    composing_ = !event->preeditString().isEmpty();
    QPlainTextEdit::inputMethodEvent(event);
}

}  // namespace akarix
