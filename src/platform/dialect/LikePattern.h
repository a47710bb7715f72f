#pragma once

#include <QString>

namespace akarix {

/// Whether a text fits a pattern of the dialect: "*" any characters, "?" one, "#" one digit, "[ad-f]" one of
/// them, "[!ad-f]" one that is none of them; characters compare as folded
/// (foldText), the wildcards are the half-width signs alone. A list that does not end raises 93.
bool LikeMatches(const QString& pattern, const QString& text);

}  // namespace akarix
