#include "platform/dialect/Lifting.h"

#include <algorithm>

namespace akarix {
namespace {

// An engine takes 999.
constexpr std::ptrdiff_t kMostPlaces = 900;

bool HasFrom(const std::vector<Token>& tokens) {
    return std::any_of(tokens.begin(), tokens.end(),
                       [](const Token& token) { return token.keyword == Keyword::From; });
}

/// Whether the literals behind a word are lifted; the words that say nothing about it leave it as it was.
bool LiftsBehind(Keyword keyword, bool before) {
    switch (keyword) {
        case Keyword::From:
        case Keyword::Where:
        case Keyword::On:
        case Keyword::Set:
        case Keyword::Values:
            return true;
        case Keyword::Select:
        case Keyword::Group:
        case Keyword::Order:
            return false;
        default:
            return before;
    }
}

/// The number behind TOP is part of the plan.
bool CountsRows(const std::vector<Token>& tokens, std::size_t literal) {
    return literal > 0 && tokens[literal - 1].text.compare(u"TOP", Qt::CaseInsensitive) == 0;
}

}  // namespace

void LiftLiterals(std::vector<Token>& tokens) {
    const Keyword first = tokens.front().keyword;
    const bool changes = first == Keyword::Insert || first == Keyword::Update || first == Keyword::Delete;
    const auto isLiteral = [](const Token& token) { return token.type == Token::Type::Literal; };
    if (!changes && first != Keyword::Select) return;
    if (std::count_if(tokens.begin(), tokens.end(), isLiteral) > kMostPlaces) return;
    const bool values = first == Keyword::Insert && !HasFrom(tokens);
    bool lifts = changes;
    int number = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        Token& token = tokens[i];
        if (token.type == Token::Type::Word) lifts = LiftsBehind(token.keyword, lifts);
        if (!isLiteral(token)) continue;
        if ((values || lifts) && !CountsRows(tokens, i)) token.number = number;
        ++number;
    }
}

}  // namespace akarix
