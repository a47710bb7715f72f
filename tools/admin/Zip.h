#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command ZipCommand();

}  // namespace akarix::admin
