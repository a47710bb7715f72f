#pragma once

#include <QString>

namespace akarix {

/// u"text"_s is a QString whose characters stand in the program.
using namespace Qt::StringLiterals;

}  // namespace akarix
