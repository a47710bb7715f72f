#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command debitCommand();

}  // namespace akarix::admin
