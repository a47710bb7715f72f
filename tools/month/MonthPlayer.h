#pragma once

#include <QString>

namespace akarix::month {

struct Options;

/// Plays the road of a month; needs an application that is not running its events yet. Gives the summary,
/// which also stands in the folder. Raises Failure, with a text that says where the road ended.
QString PlayMonth(const Options& options);

}  // namespace akarix::month
