#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command RestoreCommand();

}  // namespace akarix::admin
