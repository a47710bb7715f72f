#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command createCommand();

}  // namespace akarix::admin
