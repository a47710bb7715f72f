#include "platform/runtime/CDbl.h"

#include "platform/runtime/NumberOf.h"

namespace akarix {

double CDbl(const Variant& value) {
    if (const double* number = value.If<double>()) return *number;
    if (const Date* date = value.If<Date>()) return date->Serial();
    return NumberOf(value).toDouble();
}

}  // namespace akarix
