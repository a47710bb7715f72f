#include "admin/MonthArgument.h"

#include <QRegularExpression>

#include "platform/runtime/Literals.h"

namespace akarix::admin {

std::optional<BillingMonth> ReadMonth(const QString& text) {
    static const QRegularExpression form(u"^([0-9]{4})/([0-9]{1,2})$"_s);
    const QRegularExpressionMatch match = form.match(text);
    const BillingMonth read{match.captured(1).toInt(), match.captured(2).toInt()};
    return read.nendo > 0 && read.getudo >= 1 && read.getudo <= 12 ? std::optional(read) : std::nullopt;
}

QString MonthText(BillingMonth month) {
    return u"%1/%2"_s.arg(month.nendo).arg(month.getudo, 2, 10, QLatin1Char('0'));
}

}  // namespace akarix::admin
