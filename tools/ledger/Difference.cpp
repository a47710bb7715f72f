#include "ledger/Difference.h"

namespace akarix {

QString amountText(std::int64_t scaled) {
    const std::int64_t size = scaled < 0 ? -scaled : scaled;
    QString text = QString::number(size / 10000);
    if (size % 10000 != 0) {
        text += u'.' + QStringLiteral("%1").arg(size % 10000, 4, 10, QLatin1Char('0'));
        while (text.endsWith(u'0'))
            text.chop(1);
    }
    return scaled < 0 ? u'-' + text : text;
}

QString describe(const Difference& difference) {
    return QStringLiteral("得意先 %1 %2/%3 %4: 正 %5 誤 %6")
        .arg(difference.deal)
        .arg(difference.nendo)
        .arg(difference.getudo)
        .arg(difference.column, amountText(difference.expected), amountText(difference.found));
}

}  // namespace akarix
