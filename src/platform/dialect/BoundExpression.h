#pragma once

#include <memory>
#include <variant>
#include <vector>

#include "platform/dialect/Kind.h"
#include "platform/dialect/ParsedExpression.h"

namespace akarix {

// The tree with every name resolved and every operand brought to the kind its operator works in.

struct BoundExpression;
struct BoundTable;
struct SqlFunction;
using BoundPtr = std::shared_ptr<const BoundExpression>;

struct BoundColumn {
    const BoundTable* table;
    int column;
};

struct BoundLiteral {
    Literal literal;
    int lifted = -1;
    bool negated = false;
    LiteralUse use = LiteralUse::Natural;
    const ColumnDef* target =
        nullptr;  ///< the column it goes into; none: it is only compared or computed with
};

struct BoundNull {};

struct BoundNegation {
    BoundPtr operand;
};

/// The operators that the engine has itself.
enum class NativeOp { Add, Subtract, Multiply };

struct BoundArithmetic {
    NativeOp op;
    BoundPtr left;
    BoundPtr right;
};

/// A change of the stored form that the engine can do itself.
enum class Conversion {
    WholeToCurrency,
    RealToScaled,  ///< for comparisons with Currency: keeps the fraction past four decimals
    WholeToReal,
    CurrencyToReal,
    WholeToText,
    NumberToBoolean,
};

struct BoundConversion {
    Conversion conversion;
    BoundPtr operand;
};

struct BoundCall {
    const SqlFunction* function;
    std::vector<BoundPtr> arguments;
};

struct BoundNot {
    BoundPtr operand;
};

struct BoundLogic {
    LogicOp op;
    BoundPtr left;
    BoundPtr right;
};

struct BoundComparison {
    CompareOp op;
    BoundPtr left;
    BoundPtr right;
};

struct BoundIsNull {
    BoundPtr operand;
    bool negated;
};

struct BoundLike {
    BoundPtr operand;
    BoundPtr pattern;
    bool negated;
};

enum class AggregateOp { Count, Sum, Max, First };

struct BoundAggregate {
    AggregateOp op;
    BoundPtr operand;  ///< none: Count(*)
};

using BoundNode =
    std::variant<BoundColumn, BoundLiteral, BoundNull, BoundNegation, BoundArithmetic, BoundConversion,
                 BoundCall, BoundNot, BoundLogic, BoundComparison, BoundIsNull, BoundLike, BoundAggregate>;

struct BoundExpression {
    BoundNode node;
    Kind kind;
    FieldType type;  ///< the column type a result of it has
    int size = 0;
    QString text;            ///< as the statement has it, for messages
    qsizetype position = 0;  ///< in the statement
};

/// \param from gives the text and the place.
BoundPtr MakeBound(BoundNode node, Kind kind, const BoundExpression* from = nullptr);
/// A whole number that no text contains, such as an argument left out.
BoundPtr MakeWhole(std::int64_t value);

/// The expressions right below one.
std::vector<BoundPtr> OperandsOf(const BoundExpression& expression);
bool SameExpression(const BoundExpression& a, const BoundExpression& b);

}  // namespace akarix
