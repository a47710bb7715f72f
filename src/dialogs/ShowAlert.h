#pragma once

#include <QString>

namespace akarix {

/// One message and an OK button; modal.
void ShowAlert(const QString& message);

}  // namespace akarix
