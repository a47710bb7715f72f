#include "platform/forms/Label.h"

#include <QMouseEvent>

#include "platform/forms/Control.h"

namespace akarix {

Label::Label(const QString& caption, QWidget* parent) : QLabel(caption, parent) {
    RegisterControl(this);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_NoMousePropagation);
}

Image::Image(QWidget* parent) : QLabel(parent) {
    RegisterControl(this);
    setAlignment(Qt::AlignCenter);
    setMargin(2);
    setAttribute(Qt::WA_NoMousePropagation);
    SetBorderStyle(0);
}

void Image::SetBorderStyle(int style) {
    // The frame keeps its width, so that pressing does not move the picture's neighbours.
    setFrameStyle(style == 0 ? QFrame::Panel | QFrame::Plain : QFrame::Panel | QFrame::Sunken);
    setLineWidth(1);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, style == 0 ? Qt::transparent : Qt::darkGray);
    setPalette(colours);
}

void Image::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit MouseDown();
}

void Image::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    emit MouseUp();
    if (rect().contains(event->position().toPoint())) emit Click();
}

}  // namespace akarix
