#include "platform/forms/Notice.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QStringList>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/forms/Form.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr int kShownMilliseconds = 5000;
constexpr int kMostLines = 3;
constexpr int kMostTries = 10;

QStringList pending;

/// No control of its form: nothing is typed into it, cleared or asked.
class NoticeLine : public QLabel {
 public:
    NoticeLine(const QString& text, QWidget& over) : QLabel(text, &over) {
        setObjectName(u"Notice"_s);
        // As a tip: above its window, outside the keyboard's and the window manager's business.
        setWindowFlags(Qt::ToolTip | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_DeleteOnClose);
        setTextFormat(Qt::PlainText);
        setMargin(6);
        setFrameStyle(QFrame::Box | QFrame::Plain);
        setBackgroundRole(QPalette::ToolTipBase);
        setForegroundRole(QPalette::ToolTipText);
        setAutoFillBackground(true);
        over.installEventFilter(this);
        QTimer::singleShot(kShownMilliseconds, this, &QWidget::close);
    }

    /// Below the window where the screen has room there, else along its lower edge.
    void place() {
        const QWidget& over = *parentWidget();
        const QRect room = over.screen()->availableGeometry();
        setMaximumWidth(room.width());
        adjustSize();
        const QRect frame = over.frameGeometry();
        const int below = std::min(frame.bottom() + 1, room.bottom() - height() + 1);
        const int left = std::clamp(frame.left(), room.left(), std::max(room.left(), room.right() - width()));
        move(left, below);
    }

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == parentWidget()) {
            if (event->type() == QEvent::Move || event->type() == QEvent::Resize) place();
            if (event->type() == QEvent::Hide) close();
        }
        return QLabel::eventFilter(watched, event);
    }
};

void ShowPending(int tries) {
    static QPointer<NoticeLine> shown;
    if (pending.isEmpty()) return;
    QWidget* over = Form::PresentWindow();
    if (over == nullptr && tries > 0) {  // a window has just gone; the next is still to take the keyboard
        constexpr int milliseconds = 50;
        QTimer::singleShot(milliseconds, qApp, [tries] { AfterAction([tries] { ShowPending(tries - 1); }); });
        return;
    }
    QStringList lines = std::exchange(pending, {});
    if (over == nullptr) return;
    if (const auto more = lines.size() - kMostLines; more > 0) {
        lines.resize(kMostLines);
        lines += u"ほか %1 件"_s.arg(more);
    }
    delete shown.data();
    shown = new NoticeLine(lines.join(u'\n'), *over);
    shown->place();
    shown->show();
}

}  // namespace

void ShowNotice(const QString& text) {
    pending += text;
    if (pending.size() == 1) AfterAction([] { ShowPending(kMostTries); });
}

void ForgetNotices() {
    pending.clear();
}

void NoticeSaved() {
    ShowNotice(u"保存しました。"_s);
}

void NoticeWritten(const QString& path) {
    ShowNotice(u"%1 に書きました。"_s.arg(QDir::toNativeSeparators(path)));
}

}  // namespace akarix
