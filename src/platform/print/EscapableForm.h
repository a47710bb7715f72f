#pragma once

#include <QKeyEvent>

#include "platform/forms/Form.h"

namespace akarix {

/// A form that Escape leaves, as the platform's own print, preview and save dialogs do. The system's screens
/// are not left by it: what was typed there would be gone.
class EscapableForm : public Form {
 public:
    using Form::Form;

 protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape)
            Unload();
        else
            Form::keyPressEvent(event);
    }
};

}  // namespace akarix
