#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command CheckCommand();

}  // namespace akarix::admin
