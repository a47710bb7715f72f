#pragma once

#include <QStringView>
#include <optional>

namespace akarix {

/// The inside of #...#: month/day/year, or year first with "/" or "-", and a time of day behind it or alone.
/// The serial number of the date; nothing when the text is no date.
std::optional<double> parseDateLiteral(QStringView text);

}  // namespace akarix
