#include "platform/forms/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include "platform/runtime/Literals.h"

/// A static library's resources must be asked for, outside any namespace.
static void FindPictures() {
    Q_INIT_RESOURCE(icons);
}

namespace akarix {
namespace {

// Every picture is drawn on a square of 16 by 16.
const QColor kBlue(0x1f, 0x6f, 0xa8);

void DrawLookup(QPainter& painter) {
    painter.setPen(QPen(kBlue, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(QColor(0xe8, 0xf3, 0xfa));
    painter.drawEllipse(QPointF(6.5, 6.5), 4.3, 4.3);
    painter.setPen(QPen(kBlue, 2.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(10.2, 10.2), QPointF(14, 14));
}

void DrawDisc(QPainter& painter, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(8, 8), 7.5, 7.5);
}

void DrawNotice(QPainter& painter) {
    DrawDisc(painter, kBlue);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(8, 4.6), 1.15, 1.15);
    painter.drawRoundedRect(QRectF(6.95, 6.9, 2.1, 5.4), 0.8, 0.8);
}

void DrawQuestion(QPainter& painter) {
    DrawDisc(painter, QColor(0xb8, 0x7a, 0x0a));
    QPainterPath hook;
    hook.moveTo(5.7, 6.1);
    hook.cubicTo(5.7, 2.9, 10.5, 2.9, 10.5, 6.1);
    hook.cubicTo(10.5, 8.0, 8.0, 7.9, 8.0, 9.9);
    painter.setPen(QPen(Qt::white, 1.7, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(hook);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(8, 12.3), 1.1, 1.1);
}

void DrawStop(QPainter& painter) {
    DrawDisc(painter, QColor(0xb3, 0x2d, 0x2d));
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(5.2, 5.2), QPointF(10.8, 10.8));
    painter.drawLine(QPointF(10.8, 5.2), QPointF(5.2, 10.8));
}

void DrawKeyboard(QPainter& painter) {
    painter.setPen(QPen(kBlue, 1));
    painter.setBrush(QColor(0xe8, 0xf3, 0xfa));
    painter.drawRoundedRect(QRectF(0.8, 3.8, 14.4, 8.4), 1.4, 1.4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBlue);
    for (int column = 0; column < 5; ++column)
        for (int row = 0; row < 2; ++row)
            painter.drawRect(QRectF(2.4 + column * 2.4, 5.4 + row * 2.2, 1.5, 1.3));
    painter.drawRect(QRectF(4.6, 9.8, 6.8, 1.2));
}

}  // namespace

QPixmap DrawIcon(Icon icon, int size, const QWidget* target) {
    const qreal ratio = target->devicePixelRatioF();
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 16.0, size / 16.0);
    switch (icon) {
        case Icon::Lookup:
            DrawLookup(painter);
            break;
        case Icon::Notice:
            DrawNotice(painter);
            break;
        case Icon::Question:
            DrawQuestion(painter);
            break;
        case Icon::Stop:
            DrawStop(painter);
            break;
        case Icon::Keyboard:
            DrawKeyboard(painter);
            break;
    }
    return pixmap;
}

QIcon ProgramIcon() {
    FindPictures();
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256})
        icon.addFile(u":/icons/akarix-%1.png"_s.arg(size), QSize(size, size));
    return icon;
}

}  // namespace akarix
