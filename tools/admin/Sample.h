#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command sampleCommand();

}  // namespace akarix::admin
