#include "platform/dialect/Kind.h"

namespace akarix {

Kind KindOf(FieldType type) {
    switch (type) {
        case FieldType::Boolean:
            return Kind::Boolean;
        case FieldType::Byte:
        case FieldType::Integer:
        case FieldType::Long:
            return Kind::Integer;
        case FieldType::Currency:
            return Kind::Currency;
        case FieldType::Single:
        case FieldType::Double:
            return Kind::Double;
        case FieldType::Date:
            return Kind::Date;
        case FieldType::Text:
        case FieldType::Memo:
            return Kind::Text;
    }
    return Kind::Text;
}

FieldType TypeOf(Kind kind) {
    switch (kind) {
        case Kind::Boolean:
            return FieldType::Boolean;
        case Kind::Integer:
            return FieldType::Long;
        case Kind::Currency:
            return FieldType::Currency;
        case Kind::Double:
            return FieldType::Double;
        case Kind::Date:
            return FieldType::Date;
        case Kind::Null:
        case Kind::Text:
            return FieldType::Text;
    }
    return FieldType::Text;
}

}  // namespace akarix
