#include <QDate>
#include <algorithm>
#include <cmath>

#include "platform/runtime/DateText.h"
#include "platform/runtime/Literals.h"
#include "platform/sheet/FormatCode.h"

namespace akarix {

namespace {

using Kind = FormatToken::Kind;

constexpr qint64 kMsPerSecond = 1000, msPerMinute = 60'000, msPerHour = 3'600'000, msPerDay = 86'400'000;

struct Day {
    int year, month, day;
    int weekday;  ///< 0 is Sunday
    const Era* era;
};

// Serial 1 is 1 January 1900; serial 60 is that year's 29 February, which never was but is counted.
Day DayOf(qint64 serial) {
    const int weekday = static_cast<int>((serial + 6) % 7);
    const Era* era = EraOfDay(serial);  // the day beside it in 1900, which is as far from the next era
    if (serial == 0) return {1900, 1, 0, weekday, era};
    if (serial == 60) return {1900, 2, 29, weekday, era};
    const QDate date = QDate(1899, 12, serial < 60 ? 31 : 30).addDays(serial);
    return {date.year(), date.month(), date.day(), weekday, era};
}

QString Padded(qint64 number, qsizetype width) {
    return u"%1"_s.arg(number, static_cast<int>(width), 10, QLatin1Char('0'));
}

QString EraName(const Era& era, qsizetype letters) {
    const QString name(reinterpret_cast<const QChar*>(era.name), 2);
    return letters == 1 ? QString(QChar(era.letter)) : name.left(letters == 2 ? 1 : 2);
}

QString DayText(QStringView code, const Day& day, bool firstYearByName) {
    static const QStringView months[] = {u"January",   u"February", u"March",    u"April",
                                         u"May",       u"June",     u"July",     u"August",
                                         u"September", u"October",  u"November", u"December"};
    static const QStringView weekdays[] = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                           u"Thursday", u"Friday", u"Saturday"};
    const QStringView month = months[day.month - 1], weekday = weekdays[day.weekday];
    const Era& era = *day.era;
    const int eraYear = day.year - era.firstYear + 1;
    const qsizetype length = code.size();
    switch (code[0].unicode()) {
        case u'y':
            return length <= 2 ? Padded(day.year % 100, 2) : Padded(day.year, 4);
        case u'm':
            if (length <= 2) return Padded(day.month, length);
            return (length == 3 ? month.left(3) : length == 4 ? month : month.left(1)).toString();
        case u'd':
            if (length <= 2) return Padded(day.day, length);
            return (length == 3 ? weekday.left(3) : weekday).toString();
        case u'a': {
            const QString kanji = u"日月火水木金土"_s.mid(day.weekday, 1);
            return length == 3 ? kanji : kanji + u"曜日"_s;
        }
        case u'g':
            return EraName(era, length);
        case u'e':
            return firstYearByName && eraYear == 1 ? u"元"_s : Padded(eraYear, length);
        case u'r':
            return (length == 1 ? QString() : EraName(era, 3)) + Padded(eraYear, 2);
        default:
            return {};
    }
}

struct Clockwork {
    qint64 ms;  ///< since the serial's zero
    bool twelveHours;

    qint64 hour() const { return ms % msPerDay / msPerHour; }
    qint64 minute() const { return ms % msPerHour / msPerMinute; }
    qint64 second() const { return ms % msPerMinute / kMsPerSecond; }
    bool afternoon() const { return hour() >= 12; }
    qint64 shownHour() const { return twelveHours ? (hour() + 11) % 12 + 1 : hour(); }
};

}  // namespace

QString FormatSerial(double serial, const FormatSection& section) {
    constexpr double firstBeyondYear9999 = 2958466;
    if (!(serial >= 0 && serial < firstBeyondYear9999)) return u"########"_s;

    const auto& tokens = section.tokens;
    const auto has = [&tokens](const auto& what) { return std::any_of(tokens.begin(), tokens.end(), what); };
    const auto isDate = [](const FormatToken& token) { return token.kind == Kind::Date; };
    const bool twelveHours = has([&](const auto& t) { return isDate(t) && t.text.contains(u'/'); });
    Clockwork clock{std::llround(serial * static_cast<double>(msPerDay)), twelveHours};
    if (has([&](const auto& t) { return isDate(t) && t.text[0] == u's'; })) {
        // A shown second is rounded, and carries; minutes and hours are not.
        clock.ms = (clock.ms + kMsPerSecond / 2) / kMsPerSecond * kMsPerSecond;
    }
    const Day day = DayOf(clock.ms / msPerDay);

    QString out;
    for (const FormatToken& token : tokens) {
        switch (token.kind) {
            case Kind::Minutes:
                out += Padded(clock.minute(), token.text.size());
                break;
            case Kind::Date:
                if (token.text == u"am/pm") {
                    out += section.japaneseHalves ? (clock.afternoon() ? u"午後"_s : u"午前"_s)
                                                  : (clock.afternoon() ? u"PM"_s : u"AM"_s);
                } else if (token.text[0] == u'h') {
                    out += Padded(clock.shownHour(), qMin<qsizetype>(token.text.size(), 2));
                } else if (token.text[0] == u's') {
                    out += Padded(clock.second(), qMin<qsizetype>(token.text.size(), 2));
                } else {
                    out += DayText(token.text, day, section.firstYearByName);
                }
                break;
            default:
                out += token.text;
        }
    }
    return out;
}

}  // namespace akarix
