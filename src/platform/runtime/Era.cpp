#include "platform/runtime/DateText.h"

#include <array>

namespace akarix {

namespace {

constexpr std::array kEras{
    Era{u'R', u"令和", 2019, 43586},   // 2019-05-01
    Era{u'H', u"平成", 1989, 32516},   // 1989-01-08
    Era{u'S', u"昭和", 1926, 9856},    // 1926-12-25
    Era{u'T', u"大正", 1912, 4595},    // 1912-07-30
    Era{u'M', u"明治", 1868, -11662},  // 1868-01-25
};

}  // namespace

const Era* EraOfDay(std::int64_t day) {
    for (const Era& era : kEras)
        if (day >= era.firstDay) return &era;
    return nullptr;
}

const Era* EraOfName(const QString& name) {
    for (const Era& era : kEras) {
        const QString full = QString::fromUtf16(era.name);
        if (name == full || name == full.left(1) || name.toUpper() == QChar(era.letter)) return &era;
    }
    return nullptr;
}

}  // namespace akarix
