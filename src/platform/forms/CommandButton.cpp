#include "platform/forms/CommandButton.h"

#include <QKeyEvent>

#include "platform/forms/Control.h"

namespace akarix {

CommandButton::CommandButton(const QString& caption, QWidget* parent, ButtonWeight weight)
    : QPushButton(caption, parent), weight_(weight) {
    RegisterControl(this);
    setAttribute(Qt::WA_NoMousePropagation);
    connect(this, &QPushButton::clicked, this, &CommandButton::Click);
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            click();
            break;
        case Qt::Key_Left:
        case Qt::Key_Up:
            focusNextPrevChild(false);
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
            focusNextPrevChild(true);
            break;
        default:
            QPushButton::keyPressEvent(event);
            return;
    }
    event->accept();
}

}  // namespace akarix
