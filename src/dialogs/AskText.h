#pragma once

#include <QString>

namespace akarix {

/// One line of text, pre-filled and selected; there is no cancel.
QString AskText(const QString& prompt, const QString& preset);

}  // namespace akarix
