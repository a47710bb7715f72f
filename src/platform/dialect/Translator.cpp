#include "platform/dialect/Translator.h"

#include <algorithm>

#include "platform/dialect/Binder.h"
#include "platform/dialect/Lexer.h"
#include "platform/dialect/Lifting.h"
#include "platform/dialect/Parser.h"

namespace akarix {
namespace {

BoundText WithValues(std::shared_ptr<const BoundStatement> statement, const std::vector<Literal>& literals) {
    BoundText text{std::move(statement), {}};
    text.values.reserve(text.statement->places.size());
    for (const LiteralPlace& place : text.statement->places)
        text.values.push_back(ValueAt(place, literals[static_cast<std::size_t>(place.number)]));
    return text;
}

}  // namespace

bool Translator::Kept::holdsFor(const std::vector<Literal>& literals) const {
    return std::all_of(staying.begin(), staying.end(),
                       [&](const auto& one) { return literals[one.first] == one.second; });
}

BoundText Translator::translate(const QString& sql) {
    if (version_ != catalogue_.version()) {
        kept_.clear();
        version_ = catalogue_.version();
    }
    const bool shaped = shape_.read(sql);
    if (const Kept* kept = shaped ? kept_.object(shape_.key()) : nullptr;
        kept && kept->holdsFor(shape_.literals()))
        return WithValues(kept->statement, shape_.literals());

    std::vector<Token> tokens = Tokenize(sql);
    LiftLiterals(tokens);
    auto made = std::make_unique<Kept>();
    made->statement =
        std::make_shared<const BoundStatement>(Binder(catalogue_).bind(Parser(sql, tokens).statement()));
    std::vector<Literal> literals;
    for (const Token& token : tokens) {
        if (token.type != Token::Type::Literal) continue;
        if (token.number < 0) made->staying.emplace_back(literals.size(), token.literal);
        literals.push_back(token.literal);
    }
    BoundText text = WithValues(made->statement, literals);
    if (shaped) kept_.insert(shape_.key(), made.release());
    return text;
}

}  // namespace akarix
