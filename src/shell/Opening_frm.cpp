#include "shell/Opening_frm.h"

#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/forms/Icons.h"
#include "platform/forms/Style.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

constexpr QSize kPictureSize(420, 220);
constexpr int kStandsMs = 1000;

/// Drawn at the screen's own resolution, so that it is as crisp at 150 % as at 100 %.
QPixmap SplashPicture(qreal ratio) {
    QPixmap picture(kPictureSize * ratio);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area(QPointF(0, 0), kPictureSize);
    QLinearGradient ground(area.topLeft(), area.bottomLeft());
    ground.setColorAt(0, QColor(0x1f, 0x4e, 0x79));
    ground.setColorAt(1, QColor(0x16, 0x36, 0x55));
    painter.fillRect(area, ground);

    ProgramIcon().paint(&painter, QRect(26, 50, 112, 112));

    QFont font = ScreenFont();
    painter.setPen(Qt::white);
    font.setPixelSize(44);
    painter.setFont(font);
    painter.drawText(QRectF(160, 62, 240, 60), Qt::AlignLeft | Qt::AlignVCenter, u"Akarix"_s);
    font.setPixelSize(15);
    painter.setFont(font);
    painter.setPen(QColor(0xc9, 0xdd, 0xee));
    painter.drawText(QRectF(162, 120, 240, 30), Qt::AlignLeft | Qt::AlignVCenter, u"LPガス販売管理"_s);
    return picture;
}

}  // namespace

Opening_frm::Opening_frm() : Form(u"Opening_frm"_s, u"Akarix"_s) {
    setWindowFlag(Qt::FramelessWindowHint);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    Image1_ = new Image(this);
    Image1_->setObjectName(u"Image1"_s);
    Image1_->setFrameShape(QFrame::NoFrame);
    Image1_->setMargin(0);
    Image1_->setPixmap(SplashPicture(devicePixelRatioF()));
    layout->addWidget(Image1_);

    auto* timer = new QTimer(this);
    timer->setInterval(kStandsMs);
    on(Image1_, &Image::Click, [this] { Unload(); });
    on(timer, &QTimer::timeout, [this, timer] {
        timer->stop();
        Unload();
    });
    timer->start();
}

}  // namespace akarix
