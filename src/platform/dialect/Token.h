#pragma once

#include <QStringView>
#include <optional>

#include "platform/dialect/Literal.h"

namespace akarix {

/// Words with a place in the grammar; they cannot name a column unless they stand in brackets.
enum class Keyword {
    None,
    And,
    As,
    Asc,
    By,
    Delete,
    Desc,
    From,
    Group,
    Inner,
    Insert,
    Into,
    Is,
    Join,
    Left,
    Like,
    Not,
    Null,
    On,
    Or,
    Order,
    Select,
    Set,
    Update,
    Values,
    Where,
};

struct Token {
    enum class Type { Word, Bracketed, Literal, Symbol, End };

    Type type = Type::End;
    Keyword keyword = Keyword::None;  ///< of a Word
    QStringView text;                 ///< a piece of the statement, which must outlive the token
    qsizetype position = 0;
    Literal literal;
    int number = -1;  ///< of the literal among those of the text; -1: it is part of the plan
};

}  // namespace akarix
