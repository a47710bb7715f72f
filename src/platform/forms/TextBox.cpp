#include "platform/forms/TextBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <algorithm>

#include "platform/forms/Control.h"
#include "platform/forms/FocusMove.h"
#include "platform/runtime/Text.h"

namespace akarix {
namespace {

/// Some input methods hand on the Enter that committed a composition, a moment after the commit. Nobody
/// presses Enter twice within this time.
constexpr int kCommitKeyMilliseconds = 50;

QString ToHalfKatakana(const QString& text) {
    return StrConv(StrConv(text, Katakana), NarrowChars);
}

/// Figures, signs, points and letters; kana stay, since a file may be called so.
QString Narrowed(QString text) {
    constexpr char16_t firstWide = u'！';
    constexpr char16_t lastWide = u'～';
    constexpr int apart = firstWide - u'!';
    for (QChar& mark : text) {
        const char16_t code = mark.unicode();
        if (code >= firstWide && code <= lastWide) mark = QChar(code - apart);
        if (code == u'　') mark = u' ';
        if (code == u'￥') mark = u'\\';
        if (code == u'−') mark = u'-';
    }
    return text;
}

bool Types(const QKeyEvent& press) {
    return !press.text().isEmpty() && press.text().front().isPrint() &&
           !(press.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    RegisterControl(this);
    setTextMargins(2, 0, 2, 0);
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (!composing_ && !fitting_) fitEdit();
    });
    // Asked for, not told: behind a paste that was made to fit, the signal still tells what came in.
    connect(this, &QLineEdit::textChanged, this, [this] { before_ = text(); });
}

void TextBox::SetIMEMode(ImeMode mode) {
    imeMode_ = mode;
    const bool off = mode == ImeMode::Off;
    setAttribute(Qt::WA_InputMethodEnabled, !off);
    setInputMethodHints(off ? Qt::ImhPreferLatin | Qt::ImhNoPredictiveText : Qt::ImhNone);
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
    if (wasComposing && !composing_ && !event->commitString().isEmpty())
        commitKey_.setRemainingTime(kCommitKeyMilliseconds);
    const QString& commit = event->commitString();
    const QString kept = fitting(
        taken(commit), restOf(cursorPosition() + event->replacementStart(), event->replacementLength()));
    if (kept != commit) {
        QInputMethodEvent fitted(event->preeditString(), event->attributes());
        fitted.setCommitString(kept, event->replacementStart(), event->replacementLength());
        QLineEdit::inputMethodEvent(&fitted);
        event->setAccepted(fitted.isAccepted());
        return;
    }
    QLineEdit::inputMethodEvent(event);
}

// Pastes and drops come in by Qt's own ways and are made fit behind them; a key that is refused here leaves
// nothing to undo.
void TextBox::keyPressEvent(QKeyEvent* event) {
    if (Types(*event)) {
        const QString kept = fitting(taken(event->text()), restOf(0, 0));
        if (kept != event->text()) {
            if (!kept.isEmpty()) insert(kept);
            event->accept();
            return;
        }
    }
    QLineEdit::keyPressEvent(event);
}

/// A text as the box's input method takes it in.
QString TextBox::taken(const QString& coming) const {
    switch (imeMode_) {
        case ImeMode::Off:
            return Narrowed(coming);
        case ImeMode::KatakanaHalf:
            return ToHalfKatakana(coming);
        default:
            return coming;
    }
}

/// As much of it as there is room for beside the rest.
QString TextBox::fitting(const QString& coming, const QString& rest) const {
    if (maxBytes_ == 0 || coming.isEmpty()) return coming;
    const int room = maxBytes_ - ByteLength932(rest);
    QString kept = coming;
    while (!kept.isEmpty() && ByteLength932(kept) > room)
        kept.chop(kept.back().isLowSurrogate() ? 2 : 1);
    return kept;
}

/// What stays when the selection, or else the stretch given, is replaced.
QString TextBox::restOf(int start, int length) const {
    QString rest = text();
    if (hasSelectedText()) return rest.remove(selectionStart(), selectionLength());
    return length > 0 ? rest.remove(start, length) : rest;
}

void TextBox::fitEdit() {
    // What came in ends at the cursor and begins where the text differs from the one before.
    const QString now = text();
    const int end = cursorPosition();
    const qsizetype latest = std::min<qsizetype>({end, before_.size(), end - (now.size() - before_.size())});
    int start = 0;
    while (start < latest && now[start] == before_[start])
        ++start;
    const QString coming = now.mid(start, end - start);
    const QString kept = fitting(taken(coming), now.left(start) + now.mid(end));
    if (kept == coming) return;
    fitting_ = true;
    setSelection(start, end - start);
    insert(kept);  // unlike setText this can be undone
    fitting_ = false;
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

}  // namespace akarix
