#include "toolkit/DateBox.h"

#include "platform/runtime/Conversion.h"

namespace akarix {

void ShowDate(Date date, TextBox& box) {
    box.SetText(DateText(date));
}

void ShowDateVar(const Variant& value, TextBox& box) {
    ShowDate(IsDate(value) ? CDate(value) : Date(), box);
}

bool IsFullDate(const TextBox& box) {
    return IsFullDateText(box.Text());
}

Date ReadDate(const TextBox& box) {
    return ParseDate(box.Text());
}

Date ReadStrictDate(const TextBox& box) {
    return ParseStrictDate(box.Text());
}

}  // namespace akarix
