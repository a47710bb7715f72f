#pragma once

#include "platform/dialect/Plan.h"

namespace akarix {

/// A literal as the text of a statement gives it.
struct Literal {
    /// Decimal: at most four decimals, so that it can be money; Real: everything else with a point.
    enum class Kind { Integer, Decimal, Real, Text, Date };

    Kind kind = Kind::Integer;
    StoreValue value;  ///< Integer: itself; Decimal: scaled by 10,000; Real, Date: a double; Text: the text

    friend bool operator==(const Literal&, const Literal&) = default;
};

/// What a statement makes of a literal. Chosen once for a plan, carried out for every text that uses it.
enum class LiteralUse {
    Natural,         ///< in its own kind; a Decimal as a double
    CurrencyExact,   ///< scaled; what has more than four decimals stays a fraction, for comparisons
    CurrencyStored,  ///< scaled and rounded half to even
    IntegerStored,   ///< rounded half to even
    Real,
    DateStored,  ///< text is read as a date
    DateAsked,   ///< as DateStored, but text that is no date raises 13
    TextStored,
    BooleanStored,
};

/// The value to bind or to write. A text that cannot become what its column holds stays a text and a number
/// too large a double.
StoreValue LiteralValue(const Literal& literal, bool negated, LiteralUse use);

/// The same for a literal that goes into a column, or into none: raises when it does not fit (MisfitOf).
StoreValue LiteralFor(const ColumnDef* target, const Literal& literal, bool negated, LiteralUse use);

}  // namespace akarix
