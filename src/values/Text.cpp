#include "values/Text.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix {

namespace {

bool IsLeadByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

}  // namespace

QString NullToEmpty(const Variant& value) {
    return value.IsNull() ? QString() : Trim(CStr(value));
}

Variant NullToZero(const Variant& value) {
    return value.IsNull() ? Variant(std::int16_t{0}) : value;
}

QString EmptyToBlank(const QString& text) {
    return text.isEmpty() ? u" "_s : text;
}

bool HasText(const Variant& value) {
    return !NullToEmpty(value).isEmpty();
}

QString CutBytes(const QString& text, int bytes) {
    const QByteArray all = ToCodePage932(text);
    qsizetype end = 0;
    while (end < all.size()) {
        const int width = IsLeadByte(all[end]) ? 2 : 1;
        if (end + width > bytes) break;
        end += width;
    }
    return FromCodePage932(all.left(end));
}

}  // namespace akarix
