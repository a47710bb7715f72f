#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command SampleCommand();

}  // namespace akarix::admin
