#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command CreateCommand();

}  // namespace akarix::admin
