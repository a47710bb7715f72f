#pragma once

#include "platform/dialect/BoundChange.h"
#include "platform/dialect/QueryBinder.h"

namespace akarix {

/// Binds INSERT, UPDATE and DELETE.
class ChangeBinder {
 public:
    explicit ChangeBinder(const Catalogue& catalogue) : queries_(catalogue) {}

    BoundInsert bind(const ParsedInsert& parsed);
    BoundUpdate bind(const ParsedUpdate& parsed);
    BoundDelete bind(const ParsedDelete& parsed);

 private:
    QueryBinder queries_;
};

}  // namespace akarix
