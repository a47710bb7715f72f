#pragma once

#include "platform/dialect/ColumnValue.h"

namespace akarix {

/// A literal as the text of a statement gives it.
struct Literal {
    /// Decimal: at most four decimals, so that it can be money; Real: everything else with a point.
    enum class Kind { Integer, Decimal, Real, Text, Date };

    Kind kind = Kind::Integer;
    StoreValue value;  ///< Integer: itself; Decimal: scaled by 10,000; Real, Date: a double; Text: the text

    friend bool operator==(const Literal&, const Literal&) = default;
};

/// The form in which an operator or a comparison wants a value.
enum class Form {
    Natural,  ///< in its own kind; a Decimal as a double
    Real,
    Scaled,  ///< as Currency is; what has more than four decimals stays a fraction, so that it compares
             ///< exactly
    Date,    ///< a text is read as one and raises 13 when it is none
};

/// What a plan makes of one of the literals: settled once, carried out for every text that uses the plan.
struct LiteralPlace {
    int number = -1;  ///< of the literal among those of the text; -1: it is part of the plan
    bool negated = false;
    Form form = Form::Natural;
    const ColumnDef* target = nullptr;  ///< the column it goes into; none: it is compared or computed with

    friend bool operator==(const LiteralPlace&, const LiteralPlace&) = default;
};

/// The value of a literal at its place. Raises when it does not fit its column (MisfitOf).
StoreValue ValueAt(const LiteralPlace& place, const Literal& literal);

}  // namespace akarix
