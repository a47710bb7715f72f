#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command templateCommand();

}  // namespace akarix::admin
