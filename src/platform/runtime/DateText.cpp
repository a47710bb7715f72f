#include "platform/runtime/DateText.h"

#include <QRegularExpression>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"

namespace akarix {

namespace {

using Day = std::optional<std::int64_t>;

Day MakeDay(int year, int month, int day) {
    const int full = FullYear(year);
    if (full < 100 || full > 9999 || month < 1 || month > 12) return std::nullopt;
    if (day < 1 || day > DaysInMonth(full, month)) return std::nullopt;
    return DayNumber(full, month, day);
}

Day FirstOf(std::initializer_list<Day> candidates) {
    for (const Day& day : candidates)
        if (day) return day;
    return std::nullopt;
}

/// The number of an English month name or its first three letters, else 0.
int MonthOfName(const QString& name) {
    static const QStringList names{u"january"_s,   u"february"_s, u"march"_s,    u"april"_s,
                                   u"may"_s,       u"june"_s,     u"july"_s,     u"august"_s,
                                   u"september"_s, u"october"_s,  u"november"_s, u"december"_s};
    const QString lower = name.toLower();
    for (qsizetype i = 0; i < names.size(); ++i)
        if (lower == names[i] || lower == names[i].left(3)) return static_cast<int>(i) + 1;
    return 0;
}

QRegularExpression WholeOf(const QString& form) {
    return QRegularExpression(QRegularExpression::anchoredPattern(form),
                              QRegularExpression::CaseInsensitiveOption);
}

int NumberOr(const QRegularExpressionMatch& m, const QString& group, int otherwise) {
    const QString text = m.captured(group);
    return text.isEmpty() ? otherwise : text.toInt();
}

Day ReadEraDay(const QString& text) {
    static const QRegularExpression form = WholeOf(
        uR"((?<era>明治|大正|昭和|平成|令和|[明大昭平令MTSHR])\s*(?<y>\d{1,2}|元)\s*)"
        R"((?:年\s*(?<m>\d{1,2})月(?:\s*(?<d>\d{1,2})日)?|(?<sep>[/.-])(?<m2>\d{1,2})\k<sep>(?<d2>\d{1,2})))"_s);
    const auto m = form.match(text);
    if (!m.hasMatch()) return std::nullopt;
    const int eraYear = m.captured(u"y") == u'元' ? 1 : m.captured(u"y").toInt();
    if (eraYear == 0) return std::nullopt;
    const int month = NumberOr(m, u"m"_s, NumberOr(m, u"m2"_s, 0));
    const int day = NumberOr(m, u"d"_s, NumberOr(m, u"d2"_s, 1));
    return MakeDay(EraOfName(m.captured(u"era"))->firstYear + eraYear - 1, month, day);
}

Day ReadKanjiDay(const QString& text) {
    static const QRegularExpression form =
        WholeOf(uR"((?:(?<y>\d{1,4})年\s*)?(?<m>\d{1,2})月(?:\s*(?<d>\d{1,2})日)?)"_s);
    const auto m = form.match(text);
    if (!m.hasMatch() || (m.captured(u"y").isEmpty() && m.captured(u"d").isEmpty())) return std::nullopt;
    return MakeDay(NumberOr(m, u"y"_s, Year(Today())), NumberOr(m, u"m"_s, 0), NumberOr(m, u"d"_s, 1));
}

/// Two or three parts, the first or the second of which may be the name of a month.
Day ReadPartedDay(const QString& text) {
    static const QRegularExpression form = WholeOf(
        uR"((\d{1,4}|[a-z]{3,9})(?:\s*[/,-]\s*|\s+)(\d{1,4}|[a-z]{3,9})(?:(?:\s*[/,-]\s*|\s+)(\d{1,4}))?)"_s);
    const auto match = form.match(text);
    if (!match.hasMatch()) return std::nullopt;
    const bool named1 = match.captured(1)[0].isLetter();
    const bool named2 = match.captured(2)[0].isLetter();
    const bool three = !match.captured(3).isEmpty();
    const int a = named1 ? MonthOfName(match.captured(1)) : match.captured(1).toInt();
    const int b = named2 ? MonthOfName(match.captured(2)) : match.captured(2).toInt();
    const int c = match.captured(3).toInt();
    const int thisYear = Year(Today());
    if (named1 && named2) return std::nullopt;
    if (named1 && three) return FirstOf({MakeDay(c, a, b), MakeDay(b, a, c)});
    if (named2 && three) return FirstOf({MakeDay(c, b, a), MakeDay(a, b, c)});
    if (named1) return FirstOf({MakeDay(thisYear, a, b), MakeDay(b, a, 1)});
    if (named2) return FirstOf({MakeDay(thisYear, b, a), MakeDay(a, b, 1)});
    if (three) return FirstOf({MakeDay(a, b, c), MakeDay(c, a, b), MakeDay(c, b, a)});
    return FirstOf({MakeDay(thisYear, a, b), MakeDay(thisYear, b, a), MakeDay(a, b, 1), MakeDay(b, a, 1)});
}

Day ReadDay(const QString& text) {
    return FirstOf({ReadEraDay(text), ReadKanjiDay(text), ReadPartedDay(text)});
}

/// Seconds since midnight.
std::optional<int> ReadTime(const QString& text) {
    static const QRegularExpression form = WholeOf(
        uR"((?<before>午前|午後|[ap]m?)?\s*)"
        R"((?:(?<h>\d{1,2})(?:\s*[:.]\s*(?<n>\d{1,2})(?:\s*[:.]\s*(?<s>\d{1,2}))?)?|)"
        R"((?<kanji>(?<h2>\d{1,2})時(?:\s*(?<n2>\d{1,2})分(?:\s*(?<s2>\d{1,2})秒)?)?))\s*(?<behind>午前|午後|[ap]m?)?)"_s);
    const auto m = form.match(text);
    if (!m.hasMatch()) return std::nullopt;
    const QString before = m.captured(u"before");
    const QString behind = m.captured(u"behind");
    if (!before.isEmpty() && !behind.isEmpty()) return std::nullopt;
    const QString half = (before + behind).toLower();
    const bool bareNumber = m.captured(u"n").isEmpty() && m.captured(u"kanji").isEmpty();
    if (half.isEmpty() && bareNumber) return std::nullopt;
    int hour = NumberOr(m, u"h"_s, NumberOr(m, u"h2"_s, 0));
    const int minute = NumberOr(m, u"n"_s, NumberOr(m, u"n2"_s, 0));
    const int second = NumberOr(m, u"s"_s, NumberOr(m, u"s2"_s, 0));
    const bool morning = half.startsWith(u'a') || half == u"午前"_s;
    if (hour > 23 || minute > 59 || second > 59 || (morning && hour > 12)) return std::nullopt;
    if (morning && hour == 12) hour = 0;
    if (!half.isEmpty() && !morning && hour < 12) hour += 12;
    return (hour * 60 + minute) * 60 + second;
}

}  // namespace

std::optional<Date> ReadDateText(const QString& text) {
    const QString s = StrConv(text, NarrowChars).trimmed();
    if (const auto time = ReadTime(s)) return Moment{0, *time}.date();
    if (const auto day = ReadDay(s)) return Moment{*day, 0}.date();
    // A date and a time, or a time and a date, parted by a blank; the kanji need none.
    for (qsizetype at = 1; at < s.size(); ++at) {
        const bool parted = s[at].isSpace() || s[at - 1] == u'日';
        if (!parted) continue;
        const QString first = s.left(at).trimmed();
        const QString second = s.mid(at).trimmed();
        for (const auto& [dayText, timeText] : {std::pair(first, second), std::pair(second, first)}) {
            const auto time = ReadTime(timeText);
            if (!time) continue;
            if (const auto day = ReadDay(dayText)) return Moment{*day, *time}.date();
        }
    }
    return std::nullopt;
}

}  // namespace akarix
