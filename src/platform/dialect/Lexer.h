#pragma once

#include <vector>

#include "platform/dialect/Token.h"

namespace akarix {

/// Cuts a statement into tokens; the last is End. Raises 3075 on a text, date or name that does not end and
/// on characters the dialect does not know.
std::vector<Token> Tokenize(QStringView sql);

}  // namespace akarix
