#pragma once

#include <QCache>

#include "platform/dialect/BoundStatement.h"
#include "platform/dialect/TextShape.h"

namespace akarix {

/// Turns a text of the dialect into a bound statement: lexer, parser, binder, with a cache of the statements
/// used last by the shape of their texts. The catalogue is the owner's.
/// Raises RuntimeError 3075 (syntax), 3061 (a name that is no column: too few parameters), 3078 (no such
/// table), 3464 (kinds that cannot be compared), 3346 (value count differs from column count) and others of
/// that family; the description names the construct and its place.
class Translator {
 public:
    static constexpr int kMostKept = 256;

    explicit Translator(const Catalogue& catalogue) : catalogue_(catalogue), version_(catalogue.version()) {}

    BoundText translate(const QString& sql);

 private:
    struct Kept {
        std::shared_ptr<const BoundStatement> statement;
        std::vector<std::pair<std::size_t, Literal>> staying;  ///< literals of the plan, by their numbers

        bool holdsFor(const std::vector<Literal>& literals) const;
    };

    const Catalogue& catalogue_;
    int version_;  ///< of the catalogue, when what is kept was bound
    TextShape shape_;
    QCache<QString, Kept> kept_{kMostKept};
};

}  // namespace akarix
