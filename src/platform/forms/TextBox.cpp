#include "platform/forms/TextBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>

#include "platform/forms/Control.h"
#include "platform/forms/FocusMove.h"
#include "platform/runtime/StrConv.h"

namespace akarix {
namespace {

/// Some input methods hand on the Enter that committed a composition, a moment after the commit. Nobody
/// presses Enter twice within this time.
constexpr int commitKeyMilliseconds = 50;

QString toHalfKatakana(const QString& text) {
    return StrConv(StrConv(text, Katakana), NarrowChars);
}

}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    RegisterControl(this);
    setTextMargins(2, 0, 2, 0);
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (imeMode_ == ImeMode::KatakanaHalf && !composing_) narrowKana();
    });
}

void TextBox::SetIMEMode(ImeMode mode) {
    imeMode_ = mode;
    const bool off = mode == ImeMode::Off;
    setAttribute(Qt::WA_InputMethodEnabled, !off);
    setInputMethodHints(off ? Qt::ImhPreferLatin | Qt::ImhNoPredictiveText : Qt::ImhNone);
}

void TextBox::SetSelStart(int position) {
    setCursorPosition(position);
    deselect();
}

void TextBox::SetSelLength(int length) {
    setSelection(SelStart(), length);
}

bool TextBox::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            if (takesKey(*static_cast<QKeyEvent*>(event))) {
                event->accept();
                return true;
            }
            break;
        case QEvent::KeyRelease:
            commitKey_ = QDeadlineTimer();
            break;
        default:
            break;
    }
    return QLineEdit::event(event);
}

bool TextBox::takesKey(const QKeyEvent& press) {
    if (belongsToInputMethod(press)) return true;
    if (composing_ || !isSignalConnected(QMetaMethod::fromSignal(&TextBox::KeyDown))) return false;
    return OfferKey(press, {key::Return, key::Tab, key::Up, key::Down},
                    [this](KeyEvent& event) { emit KeyDown(event); });
}

bool TextBox::belongsToInputMethod(const QKeyEvent& press) {
    const bool justCommitted = !commitKey_.hasExpired();
    commitKey_ = QDeadlineTimer();
    switch (press.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return composing_ || justCommitted;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Up:
        case Qt::Key_Down:
            return composing_;
        default:
            return false;
    }
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    const bool wasComposing = composing_;
    composing_ = !event->preeditString().isEmpty();
    if (wasComposing && !composing_ && !event->commitString().isEmpty()) {
        commitKey_.setRemainingTime(commitKeyMilliseconds);
    }
    if (imeMode_ == ImeMode::KatakanaHalf && !event->commitString().isEmpty()) {
        QInputMethodEvent narrowed(event->preeditString(), event->attributes());
        narrowed.setCommitString(toHalfKatakana(event->commitString()), event->replacementStart(),
                                 event->replacementLength());
        QLineEdit::inputMethodEvent(&narrowed);
        event->setAccepted(narrowed.isAccepted());
        return;
    }
    QLineEdit::inputMethodEvent(event);
}

void TextBox::narrowKana() {
    const QString narrow = toHalfKatakana(text());
    if (narrowing_ || narrow == text()) return;
    narrowing_ = true;
    const auto cursor = toHalfKatakana(text().left(cursorPosition())).length();
    selectAll();
    insert(narrow);  // unlike setText this can be undone
    setCursorPosition(static_cast<int>(cursor));
    narrowing_ = false;
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (IsFocusMove(*event)) emit GotFocus();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
    composing_ = false;
    QLineEdit::focusOutEvent(event);
    if (IsFocusMove(*event)) emit LostFocus();
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit Click();
}

}  // namespace akarix
