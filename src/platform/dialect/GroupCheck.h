#pragma once

#include "platform/dialect/BoundQuery.h"

namespace akarix {

/// Every column of a grouped query's results must be in its groups or inside an aggregate; raises 3122.
void CheckGroups(const BoundQuery& query);

}  // namespace akarix
