#include "store/TextToField.h"

#include "platform/runtime/Conversion.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

void TextToField(Variant& value, FieldType type, int size, const QString& text) {
    switch (type) {
        case FieldType::Currency:
            value = ToCurrency(text);
            return;
        case FieldType::Long:
            value = ToLong(text);
            return;
        case FieldType::Integer:
            value = ToInteger(text);
            return;
        case FieldType::Text:
            value = size != 0 ? CutBytes(EmptyToBlank(text), size) : EmptyToBlank(text);
            return;
        case FieldType::Memo:
            value = EmptyToBlank(text);
            return;
        case FieldType::Date:
            value = CDate(text);
            return;
        case FieldType::Boolean:
            value = text;
            return;
        case FieldType::Byte:
        case FieldType::Single:
        case FieldType::Double:
            break;
    }
    value = Variant();
}

void TextToField(Variant& value, const Field& field, const QString& text) {
    TextToField(value, field.Type(), field.Size(), text);
}

}  // namespace akarix
