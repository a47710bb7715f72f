#include "platform/forms/LongRun.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QProgressBar>
#include <QVBoxLayout>
#include <QWindow>
#include <utility>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/SessionEnd.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr qint64 kQuietMilliseconds = 1000;
constexpr qint64 kBreathMilliseconds = 50;

bool IsInput(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            return true;
        default:
            return false;
    }
}

}  // namespace

/// Stands beside the work without taking the keyboard from it.
class LongRun::Window : public QFrame {
 public:
    explicit Window(QWidget* owner)
        : QFrame(owner, Qt::ToolTip | Qt::WindowDoesNotAcceptFocus),
          what_(new Label({}, this)),
          count_(new Label({}, this)),
          bar_(new QProgressBar(this)),
          stop_(new CommandButton(u"中止"_s, this)),
          hint_(new Label({}, this)) {
        setObjectName(u"LongRun"_s);
        setFrameStyle(QFrame::Box | QFrame::Plain);
        setAttribute(Qt::WA_ShowWithoutActivating);
        count_->setObjectName(u"Count"_s);
        stop_->setObjectName(u"Stop"_s);
        stop_->setFocusPolicy(Qt::NoFocus);
        bar_->setTextVisible(false);
        constexpr int width = 340;
        bar_->setMinimumWidth(width);

        auto* words = new QHBoxLayout;
        words->addWidget(what_, 1);
        words->addWidget(count_);
        auto* below = new QHBoxLayout;
        below->addWidget(hint_, 1);
        below->addWidget(stop_);
        auto* whole = new QVBoxLayout(this);
        whole->setContentsMargins(20, 16, 20, 14);
        whole->setSpacing(10);
        whole->addLayout(words);
        whole->addWidget(bar_);
        whole->addLayout(below);
    }

    CommandButton* stop() const { return stop_; }

    void tell(const QString& what, int done, int total, bool mayStop) {
        what_->SetCaption(what);
        count_->SetCaption(u"%1 / %2"_s.arg(done).arg(total));
        bar_->setRange(0, total);
        bar_->setValue(done);
        stop_->setEnabled(mayStop);
        hint_->SetCaption(mayStop ? u"Esc でも中止できます。"_s : u"終わるまでお待ちください。"_s);
        if (isVisible()) return;
        adjustSize();
        const QWidget* owner = parentWidget() != nullptr ? parentWidget()->window() : nullptr;
        if (owner != nullptr) move(owner->frameGeometry().center() - rect().center());
        show();
    }

 private:
    Label* what_;
    Label* count_;
    QProgressBar* bar_;
    CommandButton* stop_;
    Label* hint_;
};

LongRun::LongRun(const QString& what, AtSessionEnd atSessionEnd)
    : outer_(std::exchange(current(), this)),
      what_(what),
      endsWithSession_(atSessionEnd == AtSessionEnd::Stops) {
    sinceStart_.start();
    sinceBreath_.start();
    qApp->installEventFilter(this);
    setBusy(true);
    breathe();  // the dialog it was started from is still to go from the screen
}

LongRun::~LongRun() {
    breathe();
    delete window_;
    setBusy(false);
    current() = outer_;
}

void LongRun::stage(const QString& what, bool mayStop) {
    stage_ = what;
    mayStop_ = mayStop;
    stopWanted_ = stopWanted_ && mayStop;
}

void LongRun::step(int done, int total) {
    if (sinceBreath_.elapsed() >= kBreathMilliseconds) {
        if (sinceStart_.elapsed() >= kQuietMilliseconds) show(done, total);
        breathe();
    }
    if (mayStop_ && (stopWanted_ || (endsWithSession_ && SessionEnd::Requested()))) {
        stopped_ = true;
        throw RuntimeError(CancelledByOperator);
    }
}

void LongRun::show(int done, int total) {
    if (!window_) {
        window_ = new Window(Form::PresentWindow());
        connect(window_->stop(), &CommandButton::Click, this, [this] { stopWanted_ = true; });
    }
    const QString what = stage_.isEmpty() ? what_ : what_ + u"： "_s + stage_;
    window_->tell(what, done, total, mayStop_);
}

void LongRun::breathe() {
    QCoreApplication::processEvents();
    sinceBreath_.restart();
}

void LongRun::setBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

bool LongRun::isOwn(const QObject* watched) const {
    if (!window_) return false;
    if (watched->isWindowType()) return watched == window_->windowHandle();
    return watched->isWidgetType() && static_cast<const QWidget*>(watched)->window() == window_;
}

bool LongRun::eventFilter(QObject* watched, QEvent* event) {
    if (paused_) return false;
    const bool byOperator = event->spontaneous();
    if (event->type() == QEvent::Close && byOperator) {
        event->ignore();
        return true;
    }
    if (!IsInput(event->type())) return false;
    if (event->type() == QEvent::KeyPress) {
        const auto& press = static_cast<const QKeyEvent&>(*event);
        // What was typed before the window stood there was not meant for it.
        const bool seen = window_ && window_->isVisible();
        if (seen && mayStop_ && press.key() == Qt::Key_Escape && !press.isAutoRepeat()) stopWanted_ = true;
        return true;
    }
    const bool key = event->type() == QEvent::KeyRelease || event->type() == QEvent::Shortcut ||
                     event->type() == QEvent::InputMethod;
    return key || !isOwn(watched);
}

LongRun*& LongRun::current() {
    static LongRun* run = nullptr;
    return run;
}

LongRun::Pause::Pause() : run_(current()) {
    if (!run_ || run_->paused_) {
        run_ = nullptr;
        return;
    }
    run_->breathe();
    run_->paused_ = true;
    delete run_->window_;
    run_->setBusy(false);
}

LongRun::Pause::~Pause() {
    if (!run_) return;
    run_->setBusy(true);
    run_->paused_ = false;
    run_->sinceStart_.restart();
}

}  // namespace akarix
