#pragma once

#include "platform/jet/BoundQuery.h"

namespace akarix {

/// Every column of a grouped query's results must be in its groups or inside an aggregate; raises 3122.
void checkGroups(const BoundQuery& query);

}  // namespace akarix
