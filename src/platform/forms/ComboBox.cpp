#include "platform/forms/ComboBox.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "platform/forms/Control.h"
#include "platform/forms/FocusMove.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) {
    RegisterControl(this);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0) emit Click();
    });
}

void ComboBox::SetListIndex(int index) {
    if (index < -1 || index >= count()) throw RuntimeError(380);
    setCurrentIndex(index);
}

void ComboBox::AddItem(const QString& text, int itemData) {
    const int selected = currentIndex();
    const QSignalBlocker quiet(this);
    addItem(text, itemData);
    setCurrentIndex(selected);
}

int ComboBox::ItemData(int index) const {
    if (index < 0 || index >= count()) throw RuntimeError(381);
    return itemData(index).toInt();
}

bool ComboBox::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress && isSignalConnected(QMetaMethod::fromSignal(&ComboBox::KeyDown)) &&
        OfferKey(*static_cast<QKeyEvent*>(event), {key::Return, key::Tab},
                 [this](KeyEvent& press) { emit KeyDown(press); })) {
        event->accept();
        return true;
    }
    return QComboBox::event(event);
}

void ComboBox::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    if (IsFocusMove(*event)) emit LostFocus();
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    // Scrolling a screen must not change what stands in it.
    event->ignore();
}

}  // namespace akarix
