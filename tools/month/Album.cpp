#include "month/Album.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "month/Failure.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

namespace {

constexpr int kTitleHeight = 30;
constexpr int kEdge = 1;

bool IsFramed(const QWidget& window) {
    return !window.windowFlags().testFlag(Qt::FramelessWindowHint);
}

/// The place of a window on the desk, title included: the pictures come without the desk's own frames.
QRect Outline(const QWidget& window) {
    const QRect inner(window.pos(), window.size());
    return IsFramed(window) ? inner.adjusted(-kEdge, -kTitleHeight, kEdge, kEdge) : inner;
}

void PaintWindow(QPainter& painter, QWidget& window) {
    if (IsFramed(window)) {
        const QRect frame = Outline(window);
        painter.fillRect(frame, QColor(0x4a, 0x5d, 0x73));
        painter.setPen(Qt::white);
        painter.setFont(window.font());
        painter.drawText(frame.adjusted(10, 0, -10, 0).adjusted(0, 0, 0, kTitleHeight - frame.height()),
                         Qt::AlignVCenter | Qt::AlignLeft, window.windowTitle());
    }
    painter.drawPixmap(window.pos(), window.grab());
}

}  // namespace

void Album::take(const QString& name, const QList<QWidget*>& windows) {
    QCoreApplication::processEvents();  // a window just opened has yet to take the keyboard
    QRect desk;
    for (const QWidget* window : windows)
        desk |= Outline(*window);
    const qreal ratio = windows.front()->devicePixelRatioF();
    QPixmap picture(desk.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(QColor(0x8c, 0x99, 0xa6));
    QPainter painter(&picture);
    painter.translate(-desk.topLeft());
    for (QWidget* window : windows)
        PaintWindow(painter, *window);
    painter.end();

    QDir().mkpath(folder_);
    const QString number = u"%1"_s.arg(++count_, 2, 10, QLatin1Char('0'));
    const QString path = QDir(folder_).filePath(number + u'-' + name + u".png"_s);
    if (!picture.save(path)) throw Failure(u"%1 に書き込めません。"_s.arg(path));
}

}  // namespace akarix::month
