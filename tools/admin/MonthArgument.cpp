#include "admin/MonthArgument.h"

#include <QRegularExpression>

#include "platform/runtime/Literals.h"

namespace akarix::admin {

std::optional<MonthArgument> ReadMonth(const QString& text) {
    static const QRegularExpression form(u"^([0-9]{4})/([0-9]{1,2})$"_s);
    const QRegularExpressionMatch match = form.match(text);
    const MonthArgument read{match.captured(1).toInt(), match.captured(2).toInt()};
    return read.year > 0 && read.month >= 1 && read.month <= 12 ? std::optional(read) : std::nullopt;
}

QString MonthText(int nendo, int getudo) {
    return u"%1/%2"_s.arg(nendo).arg(getudo, 2, 10, QLatin1Char('0'));
}

}  // namespace akarix::admin
