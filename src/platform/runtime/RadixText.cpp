#include "platform/runtime/RadixText.h"

#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

int digitOf(QChar c, int radix) {
    const int digit = c >= u'0' && c <= u'9'   ? c.unicode() - u'0'
                      : c >= u'A' && c <= u'F' ? c.unicode() - u'A' + 10
                      : c >= u'a' && c <= u'f' ? c.unicode() - u'a' + 10
                                               : radix;
    return digit < radix ? digit : -1;
}

}  // namespace

std::optional<RadixText> readRadixText(QStringView text) {
    if (text.size() < 3 || text[0] != u'&') return std::nullopt;
    const QChar mark = text[1].toUpper();
    if (mark != u'H' && mark != u'O') return std::nullopt;
    const int radix = mark == u'H' ? 16 : 8;
    std::uint64_t bits = 0;
    qsizetype at = 2;
    for (; at < text.size(); ++at) {
        const int digit = digitOf(text[at], radix);
        if (digit < 0) break;
        if (bits > (~std::uint64_t{0} >> 4)) throw RuntimeError(6);
        bits = bits * static_cast<unsigned>(radix) + static_cast<unsigned>(digit);
    }
    if (at == 2) return std::nullopt;
    const bool closed = at < text.size() && text[at] == u'&';
    return RadixText{bits, closed, closed ? at + 1 : at};
}

}  // namespace akarix
