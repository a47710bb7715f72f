#include "clerk/Clerk.h"

#include <QApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/forms/Choice.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/MemoBox.h"
#include "platform/forms/TextBox.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

[[noreturn]] void missing(const QString& what) {
    throw std::runtime_error(what.toStdString());
}

bool IsCalled(const QWidget& dialog, const QString& name) {
    return name.isEmpty() || dialog.objectName() == name || dialog.windowTitle() == name ||
           QLatin1String(dialog.metaObject()->className()) == name;
}

void Shut(QWidget& dialog) {
    dialog.close();
    if (dialog.isVisible()) dialog.hide();
}

}  // namespace

Clerk::Clerk() {
    qApp->installEventFilter(this);
}

Clerk::~Clerk() = default;

Form& Clerk::form(const QString& name) const {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Form*>(widget);
            found && found->isVisible() && found->objectName() == name)
            return *found;
    missing(u"no form is open by the name of "_s + name);
}

bool Clerk::isOpen(const QString& name) const {
    const auto widgets = QApplication::topLevelWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
        return widget->isVisible() && widget->objectName() == name;
    });
}

QWidget* Clerk::window() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible()) return widget;
    return nullptr;
}

QWidget* Clerk::focused() const {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    QWidget* present = window();
    if (present == nullptr) return nullptr;
    return present->focusWidget() != nullptr ? present->focusWidget() : present;
}

QString Clerk::focusedName() const {
    settle();
    const QWidget* widget = focused();
    return widget != nullptr ? widget->objectName() : QString();
}

void Clerk::bringToFront(const QString& formName) {
    Form& wanted = form(formName);
    wanted.raise();
    wanted.activateWindow();
    settle();
}

QWidget& Clerk::control(const QString& name) const {
    const auto slash = name.indexOf(u'/');
    const QWidget* scope = slash < 0 ? window() : &form(name.left(slash));
    const QString wanted = name.mid(slash + 1);
    if (scope != nullptr) {
        if (auto* found = scope->findChild<QWidget*>(wanted)) return *found;
    }
    missing(u"no control %1 on %2"_s.arg(wanted, scope != nullptr ? scope->objectName() : QString()));
}

QString Clerk::text(const QString& name) const {
    const QWidget& widget = control(name);
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return box->text();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->currentText();
    if (const auto* memo = qobject_cast<const MemoBox*>(&widget)) return memo->Text();
    if (const auto* frame = qobject_cast<const Frame*>(&widget)) return frame->Caption();
    missing(name + u" shows no text"_s);
}

void Clerk::type(const QString& text) {
    settle();
    QString composed;
    for (const QChar letter : text) {
        if (letter.unicode() > 0x7e) {
            composed += letter;
            continue;
        }
        compose(std::exchange(composed, {}));
        QWidget* target = focused();
        if (target == nullptr) missing(u"nothing to type into"_s);
        QTest::keyClick(target, letter.toLatin1());
    }
    compose(composed);
}

void Clerk::compose(const QString& text) {
    if (text.isEmpty()) return;
    QWidget* target = focused();
    if (target == nullptr || !target->testAttribute(Qt::WA_InputMethodEnabled))
        missing(u"the input method is off: "_s + text);
    QInputMethodEvent composing(text, {});
    QApplication::sendEvent(target, &composing);
    QInputMethodEvent committing;
    committing.setCommitString(text);
    QApplication::sendEvent(target, &committing);
    QTest::keyClick(target, Qt::Key_Return);
}

void Clerk::press(int key, Qt::KeyboardModifiers modifiers) {
    settle();
    QWidget* target = focused();
    if (target == nullptr) missing(u"no window to take a key"_s);
    const QPointer<QWidget> guard = target;
    QTest::keyPress(target, static_cast<Qt::Key>(key), modifiers);
    // The press may have carried the keyboard elsewhere; the release follows it, as on a desk.
    if (QWidget* now = focused()) QTest::keyRelease(now, static_cast<Qt::Key>(key), modifiers);
    settle();
}

void Clerk::fill(const QString& text) {
    type(text);
    enter();
}

void Clerk::click(QWidget& widget, Qt::KeyboardModifiers modifiers) {
    settle();
    if (!widget.isVisible()) missing(u"cannot be seen: "_s + widget.objectName());
    QTest::mouseClick(&widget, Qt::LeftButton, modifiers);
    settle();
}

// By the window, as the desk does it: who gets the press and the keyboard is Qt's to say.
void Clerk::doubleClick(QWidget& widget) {
    settle();
    if (!widget.isVisible()) missing(u"cannot be seen: "_s + widget.objectName());
    constexpr int kBetween = 100;  // milliseconds
    const QPoint place = widget.mapToGlobal(widget.rect().center());
    const int first = QTest::lastMouseTimestamp;
    // While a dialog that the first press has called up is still standing.
    QTimer::singleShot(0, this, [place, first] {
        if (QWindow* under = QGuiApplication::topLevelAt(place)) clickAt(*under, place, first + kBetween);
    });
    clickAt(*widget.window()->windowHandle(), place, first);
    settle();
}

void Clerk::clickAt(QWindow& window, QPoint place, int time) {
    QTest::lastMouseTimestamp = time;
    QTest::mouseClick(&window, Qt::LeftButton, {}, window.mapFromGlobal(place));
}

void Clerk::clickCell(FlexGrid& grid, int row, int col) {
    settle();
    if (row < grid.FixedRows()) {
        const QHeaderView* head = grid.horizontalHeader();
        const QPoint at(head->sectionViewportPosition(col) + head->sectionSize(col) / 2, head->height() / 2);
        QTest::mouseClick(head->viewport(), Qt::LeftButton, {}, at);
    } else {
        const QModelIndex cell = grid.model()->index(row - grid.FixedRows(), col);
        if (!cell.isValid()) missing(u"no cell %1, %2"_s.arg(row).arg(col));
        grid.scrollTo(cell);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
    }
    settle();
}

void Clerk::closeBox(QWidget& window) {
    settle();
    window.close();
    settle();
}

void Clerk::expect(const QString& name, Answer answer) {
    expected_.push_back({name, std::move(answer)});
}

void Clerk::answerAlert() {
    expect(u"Alert_frm"_s, [this](QWidget&) { enter(); });
}

void Clerk::answerText(const QString& text) {
    expect(u"Request_frm"_s, [this, text](QWidget&) {
        if (text.isEmpty())
            press(Qt::Key_Delete);
        else
            type(text);
        enter();
    });
}

void Clerk::answerConfirm(bool first) {
    expect(u"Confirm_frm"_s, [this, first](QWidget&) {
        if (!first) down();
        enter();
        enter();
    });
}

void Clerk::answerConfirmRev(bool first) {
    answerConfirm(first);
    expected_.back().name = u"gyakuConfirm_frm"_s;
}

void Clerk::answerMsgBox() {
    expect(u"MsgBox"_s, [this](QWidget&) { enter(); });
}

QString Clerk::lastSaid() {
    if (heard_ == said_.size()) return {};
    heard_ = said_.size();
    return said_.back();
}

void Clerk::settle() const {
    // Twice: what the first round of events posts (activation, layout) is part of the same moment.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void Clerk::clearDesk() {
    expected_.clear();
    Form::DropInstances();
    settle();
}

bool Clerk::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        auto* dialog = qobject_cast<QWidget*>(watched);
        if (dialog != nullptr && dialog->isWindow() && dialog->isModal()) {
            const QPointer<QWidget> shown = dialog;
            QTimer::singleShot(0, this, [this, shown] {
                if (shown && shown->isVisible()) dialogOpened(*shown);
            });
        }
    }
    return QObject::eventFilter(watched, event);
}

void Clerk::dialogOpened(QWidget& dialog) {
    const QPointer<QWidget> shown = &dialog;
    const QString text = words(dialog);
    said_ << text;
    if (expected_.empty() || !IsCalled(dialog, expected_.front().name)) {
        complain(u"思わぬ画面が出ました: "_s + text);
        Shut(dialog);
        return;
    }
    QTimer::singleShot(patience_, this, [this, shown, text] {
        if (!shown || QApplication::activeModalWidget() != shown) return;
        complain(u"画面が閉じません: "_s + text);
        Shut(*shown);
    });
    const Expected expected = std::move(expected_.front());
    expected_.pop_front();
    if (!expected.answer) return;
    try {
        expected.answer(dialog);
    } catch (const std::exception& error) {
        complain(u"画面「%1」に答えられません: %2"_s.arg(text, QString::fromUtf8(error.what())));
        if (shown) Shut(*shown);
    }
}

void Clerk::complain(const QString& text) {
    complaints_ << text;
    qWarning("%s", qUtf8Printable(text));
}

QString Clerk::words(const QWidget& dialog) {
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) return box->text();
    if (const auto* message = dialog.findChild<const QLabel*>(u"Message"_s)) return message->text();
    if (const auto* frame = dialog.findChild<const Frame*>(u"Frame1"_s)) return frame->Caption();
    return dialog.windowTitle();
}

}  // namespace akarix
