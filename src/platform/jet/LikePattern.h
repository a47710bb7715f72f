#pragma once

#include <QStringView>

namespace akarix {

/// Whether a text fits a pattern of the dialect: "*" any characters, "?" one, "#" one digit, "[ad-f]" one of
/// them, "[!ad-f]" one that is none of them; without regard to case. A list that does not end raises 93.
bool likeMatches(QStringView pattern, QStringView text);

}  // namespace akarix
