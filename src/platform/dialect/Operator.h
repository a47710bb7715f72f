#pragma once

namespace akarix {

enum class Operator {
    Or,
    And,
    Not,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Like,
    IsNull,
    Add,
    Subtract,
    Multiply,
    Divide,
    Negate,
};

/// Whether it gives a truth value.
constexpr bool IsTest(Operator op) {
    return op < Operator::Add;
}

}  // namespace akarix
