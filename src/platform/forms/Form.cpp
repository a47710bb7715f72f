#include "platform/forms/Form.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/forms/CommandButton.h"
#include "platform/forms/FitToRoom.h"
#include "platform/forms/LongRun.h"
#include "platform/forms/Notice.h"
#include "platform/forms/PressGuard.h"
#include "platform/forms/SessionEnd.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

QList<QPointer<Form>>& Instances() {
    static QList<QPointer<Form>> all;
    return all;
}

/// What the keyboard has been given back to while the desk has not yet said so.
QPointer<QWidget>& KeyboardDue() {
    static QPointer<QWidget> control;
    return control;
}

void GiveKeyboardBack(QWidget& control) {
    control.window()->activateWindow();
    KeyboardDue() = &control;
    QTimer::singleShot(0, qApp, [] { KeyboardDue().clear(); });
}

std::function<void(const Form&)>& helpStep() {
    static std::function<void(const Form&)> step;
    return step;
}

bool HasGrowingChild(const QWidget* form) {
    const auto areas = form->findChildren<QAbstractScrollArea*>();
    return std::any_of(areas.begin(), areas.end(), [](const QAbstractScrollArea* area) {
        return !area->isWindow() && area->sizePolicy().expandingDirections().testFlag(Qt::Vertical) &&
               area->maximumHeight() == QWIDGETSIZE_MAX;
    });
}

/// What the desk draws around a window, told by one that stands already; else what most desks draw.
QMargins FrameAround(const QWidget& form) {
    if (form.windowFlags().testFlag(Qt::FramelessWindowHint)) return {};
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        const bool framed = window->isVisible() && !window->flags().testFlag(Qt::FramelessWindowHint);
        if (framed && !window->frameMargins().isNull()) return window->frameMargins();
    }
    return {4, 32, 4, 4};
}

}  // namespace

Form::Form(const QString& name, const QString& caption) {
    setObjectName(name);
    setWindowTitle(caption);
    addKeys();
    GuardPresses();
}

void Form::Show() {
    present(nullptr);
}

void Form::ShowModal() {
    const LongRun::Pause pause;
    const QPointer<QWidget> due = KeyboardDue();
    QWidget* owner = PresentWindow();
    if (owner == this) owner = nullptr;
    if (isVisible()) hide();
    const QPointer<QWidget> before = due ? due.data() : QApplication::focusWidget();
    setWindowModality(Qt::ApplicationModal);
    // A form that wants no frame (the splash) keeps none.
    const bool framed = !windowFlags().testFlag(Qt::FramelessWindowHint);
    setWindowFlags(framed ? Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint
                          : Qt::Dialog | Qt::FramelessWindowHint);

    QEventLoop loop;
    QEventLoop* const outer = std::exchange(modalLoop_, &loop);
    const QPointer<Form> self = this;
    present(owner);
    if (SessionEnd::Requested()) SessionEnd::Dismiss(*this);
    if (isVisible()) loop.exec(QEventLoop::DialogExec);
    if (self) {
        modalLoop_ = outer;
        setWindowModality(Qt::NonModal);
    }
    // Without a window manager nobody gives the keyboard back to the window below.
    if (before && before->window()->isVisible() && !before->window()->isActiveWindow())
        GiveKeyboardBack(*before);
}

void Form::Hide() {
    hide();
}

void Form::Unload() {
    if (unloaded_) return;
    bool cancel = false;
    QueryUnload(cancel);
    if (cancel || unloaded_) return;
    unloaded_ = true;
    hide();
    AfterAction([self = QPointer<Form>(this)] {
        if (self) self->deleteLater();
    });
}

QWidget* Form::PresentWindow() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    // Right behind a dialog the desk is still between two windows.
    const QPointer<QWidget> due = KeyboardDue();
    return due ? due->window() : QApplication::activeWindow();
}

QList<QWidget*> Form::Controls() const {
    return ControlsOf(this);
}

int Form::takeTabIndex() {
    return nextTabIndex_++;
}

void Form::DropInstances() {
    ForgetNotices();
    for (const QPointer<Form>& form : std::exchange(Instances(), {}))
        delete form.data();
}

void Form::SetHelp(std::function<void(const Form& asking)> help) {
    helpStep() = std::move(help);
}

Form* Form::adopt(Form* instance) {
    Instances().removeIf([](const QPointer<Form>& form) { return form.isNull(); });
    Instances().append(instance);
    return instance;
}

void Form::QueryUnload(bool& /*cancel*/) {}

void Form::MouseDown(int /*shift*/) {}

void Form::closeEvent(QCloseEvent* event) {
    RunGuarded([this] { Unload(); });
    event->setAccepted(unloaded_);
}

void Form::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous() && modalLoop_ != nullptr) modalLoop_->quit();
}

void Form::mousePressEvent(QMouseEvent* event) {
    RunGuarded([&] { MouseDown(ToShift(event->modifiers())); });
}

/// As shortcuts, since not every control lets go of a key it has no use for.
void Form::addKeys() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        on(shortcut, &QShortcut::activated, action);
    };
    add(Qt::Key_F1, [this] {
        if (helpStep()) helpStep()(*this);
    });
    add(Qt::CTRL | Qt::Key_S, [this] { pressKeep(); });
}

void Form::watchEdits() {
    const auto note = [this] { edited_ = true; };
    for (QWidget* control : Controls()) {
        if (auto* box = qobject_cast<QLineEdit*>(control)) connect(box, &QLineEdit::textEdited, this, note);
        if (auto* list = qobject_cast<QComboBox*>(control)) connect(list, &QComboBox::activated, this, note);
        if (auto* button = qobject_cast<QAbstractButton*>(control);
            button != nullptr && button->isCheckable())
            connect(button, &QAbstractButton::clicked, this, note);
    }
}

void Form::pressKeep() {
    CommandButton* first = nullptr;
    for (QWidget* control : Controls()) {
        auto* button = qobject_cast<CommandButton*>(control);
        if (button == nullptr || button->weight() != ButtonWeight::Keeps) continue;
        if (first == nullptr || TabIndex(button) < TabIndex(first)) first = button;
    }
    if (first == nullptr || !first->isVisible() || !first->isEnabled()) return;
    // A second stroke would store the emptied screen over what the first one has kept.
    if (!holdsWork()) return ShowNotice(u"打ったものがないので、保存しませんでした。"_s);
    const auto* box = qobject_cast<QLineEdit*>(focusWidget());
    if (box != nullptr && TabIndex(box) < 0 && box->isModified())
        return ShowNotice(u"打ちかけの欄を Enter で確定してから、保存して下さい。"_s);
    // The keyboard goes to the button, as under the mouse, so that the field it was in is left by its rules.
    first->setFocus(Qt::ShortcutFocusReason);
    if (focusWidget() == first) first->click();
}

void Form::present(QWidget* owner) {
    if (!arranged_) arrange();
    if (!isVisible()) place(owner);
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void Form::arrange() {
    arranged_ = true;
    ownSize_ = testAttribute(Qt::WA_Resized);
    QWidget* previous = nullptr;
    QList<QWidget*> walk = Controls();
    walk.removeIf([](const QWidget* control) { return TabIndex(control) < 0; });
    std::stable_sort(walk.begin(), walk.end(),
                     [](const QWidget* a, const QWidget* b) { return TabIndex(a) < TabIndex(b); });
    for (QWidget* control : walk) {
        if (previous != nullptr) setTabOrder(previous, control);
        previous = control;
    }
    watchEdits();
    // A new form's keyboard starts at the head of the walk unless its code has chosen otherwise.
    if (focusWidget() == nullptr && !walk.isEmpty()) walk.front()->setFocus();
    if (layout() != nullptr && !HasGrowingChild(this)) layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void Form::place(QWidget* owner) {
    const QScreen* screen = owner != nullptr ? owner->screen() : QWidget::screen();
    const QRect room = screen->availableGeometry();
    const QMargins frame = FrameAround(*this);
    fit(room.marginsRemoved(frame).size());
    const QRect around = owner != nullptr ? owner->frameGeometry() : room;
    QRect wanted = QRect(QPoint(), size()).marginsAdded(frame);
    if (owner != nullptr || !placed_)
        wanted.moveCenter(around.center());
    else
        wanted.moveTopLeft(pos());
    wanted.moveLeft(
        std::clamp(wanted.left(), room.left(), std::max(room.left(), room.right() + 1 - wanted.width())));
    wanted.moveTop(
        std::clamp(wanted.top(), room.top(), std::max(room.top(), room.bottom() + 1 - wanted.height())));
    if (!placed_ || wanted.topLeft() != pos()) move(wanted.topLeft());
    placed_ = true;
    if (owner != nullptr) {
        winId();  // a window handle is needed to stay above the owner
        windowHandle()->setTransientParent(owner->window()->windowHandle());
    }
}

void Form::fit(QSize room) {
    ensurePolished();
    if (layout() != nullptr) FitToRoom(*this, room);
    resize(wantedSize().boundedTo(room));
    hint_ = sizeHint();
}

/// A form of fixed size has that of its contents. Any other keeps what the operator made of it, until its
/// contents ask for something else.
QSize Form::wantedSize() const {
    if (layout() == nullptr) return size();
    const bool fixed = layout()->sizeConstraint() == QLayout::SetFixedSize;
    const bool asks = !ownSize_ && sizeHint() != hint_;
    return (fixed || asks ? sizeHint() : size()).expandedTo(layout()->minimumSize());
}

}  // namespace akarix
