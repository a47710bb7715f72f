#pragma once

#include "admin/Command.h"

namespace akarix::admin {

Command TemplateCommand();

}  // namespace akarix::admin
