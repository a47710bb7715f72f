#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command DebitCommand();

}  // namespace akarix::admin
