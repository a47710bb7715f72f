#pragma once

#include <QString>
#include <memory>

#include "platform/dialect/Plan.h"
#include "platform/dialect/Schema.h"

namespace akarix {

/// Turns a text of the dialect into a bound statement of the engine: lexer, parser, binder, writer, with a
/// cache of plans by normalised token text. The catalogue is the owner's; clear() after every change of it.
/// Raises RuntimeError 3075 (syntax), 3061 (a name that is no column: too few parameters), 3078 (no such
/// table), 3464 (kinds that cannot be compared), 3346 (value count differs from column count) and others of
/// that family; the description names the construct and its place.
class Translator {
 public:
    explicit Translator(const Catalogue& catalogue);
    ~Translator();
    Translator(const Translator&) = delete;
    Translator& operator=(const Translator&) = delete;

    BoundStatement translate(const QString& sql);
    void clear();

    /// How many texts the cache has answered.
    std::int64_t fromCache() const;

 private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace akarix
