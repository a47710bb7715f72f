#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command checkCommand();

}  // namespace akarix::admin
