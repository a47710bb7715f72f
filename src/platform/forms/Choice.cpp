#include "platform/forms/Choice.h"

#include <QKeyEvent>

#include "platform/forms/Control.h"

namespace akarix {
namespace {

bool isEnter(const QKeyEvent* event) {
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

/// Captions may carry what the operator has typed; an ampersand there is no shortcut.
QString literal(const QString& caption) {
    return QString(caption).replace(u'&', QStringLiteral("&&"));
}

}  // namespace

OptionButton::OptionButton(const QString& caption, QWidget* parent) : QRadioButton(literal(caption), parent) {
    RegisterControl(this);
    connect(this, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) emit Click();
    });
}

void OptionButton::SetCaption(const QString& caption) {
    setText(literal(caption));
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    if (isEnter(event)) {
        focusNextPrevChild(true);
        event->accept();
        return;
    }
    QRadioButton::keyPressEvent(event);
}

CheckBox::CheckBox(const QString& caption, QWidget* parent) : QCheckBox(literal(caption), parent) {
    RegisterControl(this);
    connect(this, &QCheckBox::toggled, this, &CheckBox::Click);
}

void CheckBox::keyPressEvent(QKeyEvent* event) {
    if (isEnter(event)) {
        focusNextPrevChild(true);
        event->accept();
        return;
    }
    QCheckBox::keyPressEvent(event);
}

Frame::Frame(const QString& caption, QWidget* parent) : QGroupBox(parent) {
    RegisterControl(this);
    SetCaption(caption);
}

void Frame::SetCaption(const QString& caption) {
    caption_ = caption;
    setTitle(literal(caption));
}

}  // namespace akarix
