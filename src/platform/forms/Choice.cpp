#include "platform/forms/Choice.h"

#include <QKeyEvent>

#include "platform/forms/Control.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

bool IsEnter(const QKeyEvent* event) {
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

/// Captions may carry what the operator has typed; an ampersand there is no shortcut.
QString Literal(const QString& caption) {
    return QString(caption).replace(u'&', u"&&"_s);
}

}  // namespace

OptionButton::OptionButton(const QString& caption, QWidget* parent) : QRadioButton(Literal(caption), parent) {
    RegisterControl(this);
    connect(this, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) emit Click();
    });
}

void OptionButton::SetCaption(const QString& caption) {
    setText(Literal(caption));
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(event)) {
        focusNextPrevChild(true);
        event->accept();
        return;
    }
    QRadioButton::keyPressEvent(event);
}

CheckBox::CheckBox(const QString& caption, QWidget* parent) : QCheckBox(Literal(caption), parent) {
    RegisterControl(this);
    connect(this, &QCheckBox::toggled, this, &CheckBox::Click);
}

void CheckBox::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(event)) {
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
    setTitle(Literal(caption));
}

}  // namespace akarix
