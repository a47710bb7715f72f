#pragma once

#include <QStringView>
#include <optional>

namespace akarix {

/// A number as a clerk types it into a cell, blanks around it allowed: "12", "-0.5", ".5", "1,234." with
/// commas only where thousands end. Exponents, percents and currency signs are no plain numbers.
struct TypedNumber {
    double value = 0;
    int decimals = 0;
    int integerDigits = 0;
    bool thousands = false;  ///< typed with commas
};
std::optional<TypedNumber> ParseTypedNumber(QStringView text);

/// The serial of a date typed as year/month/day, or as month/day of this year (29 February: of the last year
/// that had one); nothing for any other text.
std::optional<double> ParseTypedDate(QStringView text);

}  // namespace akarix
