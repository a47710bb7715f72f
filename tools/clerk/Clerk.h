#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <deque>
#include <functional>
#include <stdexcept>
#include <vector>

class QWidget;
class QWindow;

namespace akarix {

class FlexGrid;
class Form;

/// Somebody at the desk: types into whatever has the keyboard, clicks, answers the dialogs that come up and
/// remembers what they said. Works on the real windows, with or without a display.
///
/// A modal dialog blocks the key that called it, so its answer is laid ready before: expect() and the
/// answer...() helpers queue up, one per dialog, in the order of their coming. A dialog that nobody expected,
/// or one left standing, is written down in complaints() and closed.
///
/// Finding something that is not there raises std::runtime_error.
class Clerk : public QObject {
    Q_OBJECT

 public:
    using Answer = std::function<void(QWidget& dialog)>;

    Clerk();
    ~Clerk() override;

    // --- the windows
    /// The visible form of this name ("MstDeal_frm").
    Form& form(const QString& name) const;
    bool isOpen(const QString& name) const;
    /// The window the keys go to; null when none is open.
    QWidget* window() const;
    QWidget* focused() const;
    /// The name of the control that has the keyboard, as "ebox(3)".
    QString focusedName() const;
    void bringToFront(const QString& formName);

    // --- the controls of the present window, or of one named as "MstDeal_frm/ebox(3)"
    QWidget& control(const QString& name) const;
    template <class T>
    T& find(const QString& name) const {
        if (T* found = qobject_cast<T*>(&control(name))) return *found;
        throw std::runtime_error("another kind of control: " + name.toStdString());
    }
    /// What the control shows: a box's text, a label's or button's caption, a combo's chosen row.
    QString text(const QString& name) const;

    // --- the keyboard
    /// Types a text. What the keyboard has no key for goes through the input method, whose committing Enter
    /// is pressed too; where the input method is off that is an error.
    void type(const QString& text);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void enter() { press(Qt::Key_Return); }
    void tab() { press(Qt::Key_Tab); }
    void shiftTab() { press(Qt::Key_Backtab, Qt::ShiftModifier); }
    void up() { press(Qt::Key_Up); }
    void down() { press(Qt::Key_Down); }
    /// Types and presses Enter.
    void fill(const QString& text);

    // --- the mouse
    void click(QWidget& widget, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(const QString& name) { click(control(name)); }
    /// Twice in quick succession at one place, the second time on whatever stands there by then.
    void doubleClick(QWidget& widget);
    void doubleClick(const QString& name) { doubleClick(control(name)); }
    /// Row and column count as the grid counts them: row 0 is the head where there is one.
    void clickCell(FlexGrid& grid, int row, int col);
    /// The close box of a window.
    void closeBox(QWidget& window);

    // --- dialogs to come
    /// \param name object name, class name or title of the dialog; empty for any. The answer is given once it
    /// stands; without an answer the dialog is left to close by itself.
    void expect(const QString& name, Answer answer = {});
    void answerAlert();                    ///< Alert_frm: Enter
    void answerText(const QString& text);  ///< Request_frm: the text (empty clears it) and Enter
    void answerConfirm(bool first);        ///< Confirm_frm: the first or the second choice
    void answerConfirmRev(bool first);     ///< gyakuConfirm_frm
    void answerMsgBox();                   ///< the system's box, the run time's error box: Enter
    int expectedDialogs() const { return static_cast<int>(expected_.size()); }

    /// What the dialogs said, in the order of their coming.
    const QStringList& said() const { return said_; }
    /// The last thing said since the last call; empty when nothing was.
    QString lastSaid();
    /// What went wrong with dialogs: nobody expected one, one never closed, an answer failed.
    const QStringList& complaints() const { return complaints_; }

    /// Lets the pending events happen.
    void settle() const;
    /// Drops every screen, open or hidden: a fresh desk.
    void clearDesk();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    struct Expected {
        QString name;
        Answer answer;
    };

    void dialogOpened(QWidget& dialog);
    void compose(const QString& text);
    static void clickAt(QWindow& window, QPoint place, int time);
    void complain(const QString& text);
    static QString words(const QWidget& dialog);

    std::deque<Expected> expected_;
    QStringList said_;
    qsizetype heard_ = 0;
    QStringList complaints_;
    int patience_ = 10000;
};

}  // namespace akarix
