#include "platform/sheet/TypedValue.h"

#include <QDate>
#include <QList>

#include "platform/runtime/Calendar.h"

namespace akarix {

std::optional<TypedNumber> ParseTypedNumber(QStringView text) {
    text = text.trimmed();
    // Longer than any double in plain digits: a text.
    if (text.isEmpty() || text.size() > 330) return std::nullopt;
    QByteArray plain;
    qsizetype at = 0;
    if (text[0] == u'-' || text[0] == u'+') {
        if (text[0] == u'-') plain += '-';
        at = 1;
    }
    TypedNumber number;
    bool point = false;
    int sinceComma = 0;
    for (; at < text.size(); ++at) {
        const char16_t c = text[at].unicode();
        if (c >= u'0' && c <= u'9') {
            plain += static_cast<char>(c);
            ++(point ? number.decimals : number.integerDigits);
            ++sinceComma;
        } else if (c == u',' && !point) {
            if (number.thousands ? sinceComma != 3 : sinceComma < 1 || sinceComma > 3) return std::nullopt;
            number.thousands = true;
            sinceComma = 0;
        } else if (c == u'.' && !point) {
            if (number.thousands && sinceComma != 3) return std::nullopt;
            plain += '.';
            point = true;
        } else {
            return std::nullopt;
        }
    }
    if (number.integerDigits + number.decimals == 0) return std::nullopt;
    if (number.thousands && !point && sinceComma != 3) return std::nullopt;
    number.value = plain.toDouble();
    return number;
}

std::optional<double> ParseTypedDate(QStringView text) {
    const QList<QStringView> parts = text.trimmed().split(u'/');
    if (parts.size() != 2 && parts.size() != 3) return std::nullopt;
    QList<int> numbers;
    for (const QStringView part : parts) {
        bool ok = false;
        numbers += part.toInt(&ok);
        if (!ok) return std::nullopt;
    }
    if (numbers.size() == 2) {
        int year = Year(Today());
        if (numbers == QList<int>{2, 29})
            while (!QDate::isLeapYear(year))
                --year;
        numbers.prepend(year);
    }
    const QDate date(numbers[0], numbers[1], numbers[2]);
    // Serials count a 29 February 1900 that never was; only later days are plain differences.
    if (!date.isValid() || date < QDate(1900, 3, 1) || date.year() > 9999) return std::nullopt;
    return static_cast<double>(QDate(1899, 12, 30).daysTo(date));
}

}  // namespace akarix
