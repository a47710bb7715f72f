#include "platform/runtime/CBool.h"

#include "platform/runtime/NumberOf.h"

namespace akarix {

bool CBool(const Variant& value) {
    if (const QString* text = value.If<QString>()) {
        if (text->compare(u"True", Qt::CaseInsensitive) == 0) return true;
        if (text->compare(u"False", Qt::CaseInsensitive) == 0) return false;
    }
    return !NumberOf(value).isZero();
}

}  // namespace akarix
