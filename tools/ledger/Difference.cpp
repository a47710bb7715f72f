#include "ledger/Difference.h"

#include "platform/runtime/Literals.h"

namespace akarix {

QString AmountText(std::int64_t scaled) {
    const std::int64_t size = scaled < 0 ? -scaled : scaled;
    QString text = QString::number(size / 10000);
    if (size % 10000 != 0) {
        text += u'.' + u"%1"_s.arg(size % 10000, 4, 10, QLatin1Char('0'));
        while (text.endsWith(u'0'))
            text.chop(1);
    }
    return scaled < 0 ? u'-' + text : text;
}

QString Describe(const Difference& difference) {
    return u"得意先 %1 %2/%3 %4: 正 %5 誤 %6"_s.arg(difference.deal)
        .arg(difference.month.nendo)
        .arg(difference.month.getudo)
        .arg(difference.column, AmountText(difference.expected), AmountText(difference.found));
}

}  // namespace akarix
