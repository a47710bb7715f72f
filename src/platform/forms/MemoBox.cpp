#include "platform/forms/MemoBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include "platform/forms/Control.h"
#include "platform/runtime/Literals.h"

namespace akarix {

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent) {
    RegisterControl(this);
    setTabChangesFocus(true);
}

QString MemoBox::Text() const {
    return toPlainText().replace(u'\n', u"\r\n"_s);
}

void MemoBox::SetText(const QString& text) {
    setPlainText(QString(text).replace(u"\r\n"_s, u"\n"_s));
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
