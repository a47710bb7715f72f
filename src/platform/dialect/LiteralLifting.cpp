#include "platform/dialect/LiteralLifting.h"

#include <algorithm>

namespace akarix {
namespace {

constexpr char16_t kBetween = 0x1f;
constexpr char16_t kLifted = 0x1e;
// The engine takes 999; one literal can need two forms.
constexpr std::size_t kMostParameters = 400;

bool HasFrom(const std::vector<Token>& tokens) {
    return std::any_of(
        tokens.begin(), tokens.end(), [](const Token& token) { return token.keyword == Keyword::From; });
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

void AppendToken(QString& key, const Token& token) {
    switch (token.type) {
        case Token::Type::Bracketed:
            key += u'[';
            break;
        case Token::Type::Literal:
            key += QChar(static_cast<char16_t>(u'0' + static_cast<int>(token.literal.kind)));
            break;
        default:
            break;
    }
    key += token.text;
    key += QChar(kBetween);
}

}  // namespace

LiftedStatement LiftLiterals(std::vector<Token>& tokens) {
    LiftedStatement lifted;
    const Keyword first = tokens.front().keyword;
    if (first != Keyword::Select && first != Keyword::Insert && first != Keyword::Update &&
        first != Keyword::Delete)
        return lifted;
    const bool values = first == Keyword::Insert && !HasFrom(tokens);
    bool lifts = first != Keyword::Select;
    lifted.key.reserve(tokens.back().position + static_cast<qsizetype>(tokens.size()) * 2);
    lifted.literals.reserve(tokens.size() / 2);
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        Token& token = tokens[i];
        if (token.type == Token::Type::Word) lifts = LiftsBehind(token.keyword, lifts);
        if (token.type == Token::Type::Literal && (values || lifts) && !CountsRows(tokens, i)) {
            token.lifted = static_cast<int>(lifted.literals.size());
            lifted.literals.push_back(token.literal);
            lifted.key += QChar(kLifted);
            lifted.key += QChar(static_cast<char16_t>(u'0' + static_cast<int>(token.literal.kind)));
            lifted.key += QChar(kBetween);
        } else {
            AppendToken(lifted.key, token);
        }
    }
    if (lifted.literals.size() > kMostParameters) {
        for (Token& token : tokens)
            token.lifted = -1;
        return {};
    }
    return lifted;
}

}  // namespace akarix
