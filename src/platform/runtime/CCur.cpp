#include "platform/runtime/CCur.h"

#include "platform/runtime/NumberOf.h"

namespace akarix {

Currency CCur(const Variant& value) {
    return Currency::FromScaled(NumberOf(value).scaled(4));
}

}  // namespace akarix
