#pragma once

#include <QString>
#include <memory>
#include <variant>
#include <vector>

#include "platform/dialect/Literal.h"

namespace akarix {

// The tree as the text gives it: names are only names, numbers have no column they belong to.

struct ParsedExpression;
using ParsedPtr = std::unique_ptr<ParsedExpression>;

struct ParsedName {
    QString table;  ///< empty when the name stands alone
    QString column;
};

struct ParsedLiteral {
    Literal literal;
    int lifted = -1;
    bool negated = false;
};

struct ParsedNull {};

struct ParsedNegation {
    ParsedPtr operand;
};

struct ParsedNot {
    ParsedPtr operand;
};

enum class ArithmeticOp { Add, Subtract, Multiply, Divide };

struct ParsedArithmetic {
    ArithmeticOp op;
    ParsedPtr left;
    ParsedPtr right;
};

enum class CompareOp { Equal, NotEqual, Less, LessEqual, Greater, GreaterEqual };

struct ParsedComparison {
    CompareOp op;
    ParsedPtr left;
    ParsedPtr right;
};

enum class LogicOp { And, Or };

struct ParsedLogic {
    LogicOp op;
    ParsedPtr left;
    ParsedPtr right;
};

struct ParsedIsNull {
    ParsedPtr operand;
    bool negated = false;
};

struct ParsedLike {
    ParsedPtr operand;
    ParsedPtr pattern;
    bool negated = false;
};

struct ParsedCall {
    QString name;
    std::vector<ParsedPtr> arguments;
    bool star = false;  ///< Count(*)
};

using ParsedNode =
    std::variant<ParsedName, ParsedLiteral, ParsedNull, ParsedNegation, ParsedNot, ParsedArithmetic,
                 ParsedComparison, ParsedLogic, ParsedIsNull, ParsedLike, ParsedCall>;

struct ParsedExpression {
    ParsedExpression(ParsedNode content, qsizetype place) : node(std::move(content)), position(place) {}

    ParsedNode node;
    qsizetype position;
    QStringView text;  ///< the piece of the statement it was read from
    int depth = 1;     ///< levels of the tree below and with it
};

}  // namespace akarix
