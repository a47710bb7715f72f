#pragma once

#include <QDeadlineTimer>
#include <QLineEdit>

#include "platform/forms/KeyEvent.h"

namespace akarix {

/// Input methods of a text box, with the classic IMEMode numbers.
enum class ImeMode {
    NoControl = 0,
    On = 1,
    Off = 2,  ///< plain half-width typing; the input method is not asked, and what comes in wide is narrowed
    Hiragana = 4,
    KatakanaHalf = 6,  ///< kana and wide letters are turned into their half-width forms as they come in
};

/// A one-line text box. Enter, Tab and the up and down arrows reach KeyDown first and never Qt's own focus
/// chain while somebody listens; an Enter that commits an input method's text does not arrive at all.
class TextBox : public QLineEdit {
    Q_OBJECT

 public:
    explicit TextBox(QWidget* parent = nullptr);

    QString Text() const { return text(); }
    void SetText(const QString& text) { setText(text); }
    /// In bytes of code page 932; 0 is no limit. A key that would make the text longer is refused, what is
    /// pasted or committed is cut to what fits; the program's own text the field walk cuts.
    int MaxLength() const { return maxBytes_; }
    void SetMaxLength(int bytes) { maxBytes_ = bytes; }
    void SetIMEMode(ImeMode mode);

 signals:
    void KeyDown(akarix::KeyEvent& event);
    /// Focus came from, or went to, another control; changing windows or opening a menu is no such move.
    void GotFocus();
    void LostFocus();

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    bool takesKey(const QKeyEvent& press);
    bool belongsToInputMethod(const QKeyEvent& press);
    QString taken(const QString& coming) const;
    QString fitting(const QString& coming, const QString& rest) const;
    QString restOf(int start, int length) const;
    void fitEdit();

    int maxBytes_ = 0;
    ImeMode imeMode_ = ImeMode::NoControl;
    bool composing_ = false;
    QString before_;            ///< the text before the edit under way
    bool fitting_ = false;      ///< an edit is being made fit
    QDeadlineTimer commitKey_;  ///< until then a press is taken for the one that committed the composition
};

}  // namespace akarix
