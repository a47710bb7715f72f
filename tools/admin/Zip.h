#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command zipCommand();

}  // namespace akarix::admin
