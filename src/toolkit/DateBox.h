#pragma once

#include "platform/forms/TextBox.h"
#include "values/Dates.h"

namespace akarix {

/// The date helpers of the screens, on a text box.
void ShowDate(Date date, TextBox& box);
void ShowDateVar(const Variant& value, TextBox& box);
bool IsFullDate(const TextBox& box);
Date ReadDate(const TextBox& box);
Date ReadStrictDate(const TextBox& box);

}  // namespace akarix
