#include "platform/jet/DateLiteral.h"

#include <QDate>
#include <QRegularExpression>
#include <utility>

namespace akarix {
namespace {

std::optional<QDate> readDay(QStringView text) {
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,4})([/-])(\\d{1,2})\\2(\\d{1,4})$"));
    const QRegularExpressionMatch match = pattern.match(text.toString());
    if (!match.hasMatch()) return std::nullopt;
    const QString first = match.captured(1);
    int year = match.captured(4).toInt();
    int month = first.toInt();
    int day = match.captured(3).toInt();
    if (first.size() > 2) {
        day = std::exchange(year, month);
        month = match.captured(3).toInt();
    } else {
        if (month > 12) std::swap(month, day);
        if (match.captured(4).size() <= 2) year += year < 30 ? 2000 : 1900;
    }
    const QDate date(year, month, day);
    if (!date.isValid() || year < 100) return std::nullopt;
    return date;
}

std::optional<double> readTime(QStringView text) {
    static const QRegularExpression pattern(
        QStringLiteral("^(\\d{1,2}):(\\d{2})(?::(\\d{2}))?\\s*([AaPp][Mm])?$"));
    const QRegularExpressionMatch match = pattern.match(text.toString());
    if (!match.hasMatch()) return std::nullopt;
    int hour = match.captured(1).toInt();
    const int minute = match.captured(2).toInt();
    const int second = match.captured(3).toInt();
    if (!match.captured(4).isEmpty()) {
        if (hour < 1 || hour > 12) return std::nullopt;
        hour = hour % 12 + (match.captured(4).startsWith(u'p', Qt::CaseInsensitive) ? 12 : 0);
    }
    if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
    return (hour * 3600 + minute * 60 + second) / 86400.0;
}

}  // namespace

std::optional<double> parseDateLiteral(QStringView text) {
    text = text.trimmed();
    if (const auto alone = readTime(text)) return alone;
    const qsizetype blank = text.indexOf(u' ');
    const auto day = readDay(blank < 0 ? text : text.first(blank));
    if (!day) return std::nullopt;
    double time = 0;
    if (blank >= 0) {
        const auto behind = readTime(text.sliced(blank).trimmed());
        if (!behind) return std::nullopt;
        time = *behind;
    }
    const auto serial = static_cast<double>(QDate(1899, 12, 30).daysTo(*day));
    return serial < 0 ? serial - time : serial + time;  // before the epoch the time counts away from it
}

}  // namespace akarix
