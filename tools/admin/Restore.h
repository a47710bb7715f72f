#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command restoreCommand();

}  // namespace akarix::admin
