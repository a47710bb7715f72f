#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "platform/runtime/Literals.h"

namespace akarix::month {

/// The wishes of the command line.
struct Options {
    int customers = 300;
    QString out = u"month"_s;
    double scale = 1;
    int year = 0;
    int month = 0;
    QString templates;  ///< empty: the places where they usually stand
    bool help = false;
};

/// Nothing when the arguments (without the program's name) cannot be understood. The month is that of today
/// unless one is named.
std::optional<Options> ReadOptions(const QStringList& arguments);
QString HelpText();

}  // namespace akarix::month
