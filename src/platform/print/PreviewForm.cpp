#include "platform/print/PreviewForm.h"

#include "platform/forms/CommandButton.h"
#include "platform/runtime/Literals.h"

namespace akarix {

PreviewForm::PreviewForm(const QString& name, const QString& caption, PreviewPlace place)
    : EscapableForm(name, caption),
      place_(std::move(place)),
      close_(&Named(new CommandButton(place_.moreMayFollow ? u"次へ"_s : u"閉じる"_s, this), u"Close"_s)) {
    on(close_, &CommandButton::Click, [this] { Unload(); });
    if (!place_.moreMayFollow) return;
    stop_ = &Named(new CommandButton(u"中止"_s, this), u"Stop"_s);
    on(stop_, &CommandButton::Click, [this] { stop(); });
}

bool PreviewForm::Run(PreviewForm* form) {
    const auto stopped = form->stopped_;
    form->ShowModal();
    return !*stopped;
}

void PreviewForm::keyPressEvent(QKeyEvent* event) {
    if (!place_.moreMayFollow) return EscapableForm::keyPressEvent(event);
    switch (event->key()) {
        case Qt::Key_Escape:
            RunGuarded([this] {
                if (!place_.stops || place_.stops()) stop();
            });
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // A held key would run through all pages unseen.
            if (!event->isAutoRepeat()) RunGuarded([this] { Unload(); });
            break;
        default:
            EscapableForm::keyPressEvent(event);
    }
}

void PreviewForm::stop() {
    *stopped_ = true;
    Unload();
}

}  // namespace akarix
