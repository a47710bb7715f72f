#include "platform/runtime/Text.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

#include <algorithm>
#include <limits>
#include <memory>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

struct CloseConverter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};

/// A byte that stands for nothing is shown as the dot a Japanese system shows.
void U_CALLCONV WriteDot(const void*, UConverterToUnicodeArgs* args, const char*, int32_t,
                         UConverterCallbackReason reason, UErrorCode* status) {
    if (reason > UCNV_IRREGULAR) return;
    constexpr UChar kDot = u'・';
    *status = U_ZERO_ERROR;
    ucnv_cbToUWriteUChars(args, &kDot, 1, 0, status);
}

/// A character without a place in the code page becomes a mark for each of the two places that a pair takes
/// in a text, so that a record counted out in characters keeps its length in bytes.
void U_CALLCONV WriteMarks(const void*, UConverterFromUnicodeArgs* args, const UChar*, int32_t length,
                           UChar32, UConverterCallbackReason reason, UErrorCode* status) {
    if (reason > UCNV_IRREGULAR) return;
    *status = U_ZERO_ERROR;
    ucnv_cbFromUWriteBytes(args, "??", length, 0, status);
}

// A converter carries state and must not be shared between threads; opening one is slow.
UConverter* Converter() {
    static thread_local const std::unique_ptr<UConverter, CloseConverter> kept = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<UConverter, CloseConverter> opened(ucnv_open("ibm-943_P15A-2003", &status));
        if (U_FAILURE(status)) throw RuntimeError(48);
        ucnv_setFromUCallBack(opened.get(), WriteMarks, nullptr, nullptr, nullptr, &status);
        ucnv_setToUCallBack(opened.get(), WriteDot, nullptr, nullptr, nullptr, &status);
        // ¥, 〜 and − from keyboards of other systems become the code page's own signs.
        ucnv_setFallback(opened.get(), true);
        return opened;
    }();
    return kept.get();
}

// The converter's table comes from a family of machines that stored these three control characters in a
// circle; here each keeps its own code. None of them is ever the second byte of a character.
char StraightByte(char c) {
    return c == '\x1c' ? '\x7f' : c == '\x7f' ? '\x1a' : c == '\x1a' ? '\x1c' : c;
}

QChar StraightCharacter(QChar c) {
    return c == QChar(0x1a)   ? QChar(0x7f)
           : c == QChar(0x1c) ? QChar(0x1a)
           : c == QChar(0x7f) ? QChar(0x1c)
                              : c;
}

bool IsLeadByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= 0x81 && byte <= 0x9f) || (byte >= 0xe0 && byte <= 0xfc);
}

/// The first half of a character at the end stands for nothing: it is what a cut by bytes leaves behind.
qsizetype LengthWithoutHalf(const QByteArray& bytes) {
    qsizetype at = 0;
    while (at < bytes.size()) {
        const qsizetype width = IsLeadByte(bytes[at]) ? 2 : 1;
        if (at + width > bytes.size()) break;
        at += width;
    }
    return at;
}

/// True for text that is the same in every code page; most of what a record holds.
template <class Text>
bool IsPlain(const Text& text) {
    return std::all_of(text.begin(), text.end(), [](auto c) { return c >= u' ' && c <= u'~'; });
}

}  // namespace

QByteArray ToCodePage932(const QString& text) {
    if (IsPlain(text)) return text.toLatin1();
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = ucnv_fromUChars(Converter(), bytes.data(), static_cast<int32_t>(bytes.size()),
                                           reinterpret_cast<const UChar*>(text.utf16()),
                                           static_cast<int32_t>(text.size()), &status);
    bytes.truncate(length);
    for (char& c : bytes)
        c = StraightByte(c);
    return bytes;
}

QString FromCodePage932(const QByteArray& bytes) {
    if (IsPlain(bytes)) return QString::fromLatin1(bytes);
    QString text(bytes.size(), Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        ucnv_toUChars(Converter(), reinterpret_cast<UChar*>(text.data()), static_cast<int32_t>(text.size()),
                      bytes.constData(), static_cast<int32_t>(LengthWithoutHalf(bytes)), &status);
    text.truncate(length);
    for (QChar& c : text)
        c = StraightCharacter(c);
    return text;
}

int ByteLength932(const QString& text) {
    return static_cast<int>(ToCodePage932(text).size());
}

}  // namespace akarix
