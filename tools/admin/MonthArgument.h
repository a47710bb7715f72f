#pragma once

#include <QString>
#include <optional>

namespace akarix::admin {

struct MonthArgument {
    int year = 0;
    int month = 0;

    int number() const { return year * 100 + month; }
};

/// "2011/3" of the command line; nothing when it is no month.
std::optional<MonthArgument> ReadMonth(const QString& text);
/// "2011/03"
QString MonthText(int nendo, int getudo);

}  // namespace akarix::admin
