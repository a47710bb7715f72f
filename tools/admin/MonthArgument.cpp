#include "admin/MonthArgument.h"

#include <QRegularExpression>

namespace akarix::admin {

std::optional<MonthArgument> readMonth(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^([0-9]{4})/([0-9]{1,2})$"));
    const QRegularExpressionMatch match = form.match(text);
    const MonthArgument read{match.captured(1).toInt(), match.captured(2).toInt()};
    return read.year > 0 && read.month >= 1 && read.month <= 12 ? std::optional(read) : std::nullopt;
}

QString monthText(int nendo, int getudo) {
    return QStringLiteral("%1/%2").arg(nendo).arg(getudo, 2, 10, QLatin1Char('0'));
}

}  // namespace akarix::admin
