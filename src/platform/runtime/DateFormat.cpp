#include "platform/runtime/DateFormat.h"

#include <algorithm>
#include <array>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Era.h"
#include "platform/runtime/FormatMask.h"

namespace akarix {

namespace {

constexpr std::array kEnglishDays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                  "Thursday", "Friday", "Saturday"};
constexpr std::array kEnglishMonths{"January", "February", "March",     "April",   "May",      "June",
                                    "July",    "August",   "September", "October", "November", "December"};

QString number(int value, int width = 1) {
    return QString::number(value).rightJustified(width, u'0');
}

class DateMask {
 public:
    DateMask(Date date, const QString& mask)
        : moment_(Moment::of(date)),
          day_(moment_.civil()),
          weekday_(Weekday(date)),
          mask_(mask),
          halfDays_(hasHalfDays(mask)) {}

    QString text() {
        while (at_ < mask_.size()) {
            if (const auto literal = takeQuoted(mask_, at_)) {
                out_ += *literal;
            } else {
                takeCode();
            }
        }
        return out_;
    }

 private:
    static bool hasHalfDays(const QString& mask) {
        for (qsizetype at = 0; at < mask.size();) {
            if (takeQuoted(mask, at)) continue;
            const QStringView rest = QStringView(mask).mid(at++);
            for (const char* word : {"am/pm", "a/p", "ampm"}) {
                if (rest.startsWith(QLatin1StringView(word), Qt::CaseInsensitive)) return true;
            }
        }
        return false;
    }

    bool takeWord(const char* word) {
        const QLatin1StringView wanted(word);
        if (!QStringView(mask_).mid(at_).startsWith(wanted, Qt::CaseInsensitive)) return false;
        word_ = mask_.mid(at_, wanted.size());
        at_ += wanted.size();
        return true;
    }

    int takeRun(int most) {
        const QChar c = mask_[at_].toLower();
        int count = 0;
        while (count < most && at_ < mask_.size() && mask_[at_].toLower() == c) {
            ++at_;
            ++count;
        }
        return count;
    }

    void takeCode() {
        if (takeWord("am/pm") || takeWord("a/p")) return writeHalf();
        if (takeWord("ampm")) return write(morning() ? QStringLiteral("午前") : QStringLiteral("午後"));
        if (takeWord("aaaa")) return write(kanjiDay() + QStringLiteral("曜日"));
        if (takeWord("aaa")) return write(kanjiDay());
        if (takeWord("ttttt")) return write(timeText());
        if (takeWord("oooo")) return write(number(day_.month) + u'月');
        const bool minutes = behindHour_ && mask_[at_].toLower() == u'm';
        if (!minutes && mask_[at_].isLetter() && mask_[at_].unicode() < 0x80) behindHour_ = false;
        switch (mask_[at_].toLower().unicode()) {
            case u'c':
                takeRun(1);
                return write(generalDateText(moment_.date()));
            case u'd':
                return writeDay(takeRun(6));
            case u'w':
                return takeRun(2) == 1 ? write(number(weekday_)) : write(number(week()));
            case u'm':
                if (minutes) {
                    behindHour_ = false;
                    return write(number(moment_.second / 60 % 60, takeRun(2)));
                }
                return writeMonth(takeRun(4));
            case u'q':
                takeRun(1);
                return write(number((day_.month + 2) / 3));
            case u'y':
                return writeYear();
            case u'g':
                return writeEra(takeRun(3));
            case u'e':
                return write(number(eraYear(), takeRun(2)));
            case u'h':
                write(number(hour(), takeRun(2)));
                behindHour_ = true;
                return;
            case u'n':
                return write(number(moment_.second / 60 % 60, takeRun(2)));
            case u's':
                return write(number(moment_.second % 60, takeRun(2)));
            default:
                out_ += mask_[at_++];
        }
    }

    void write(const QString& text) { out_ += text; }

    bool morning() const { return moment_.second < 12 * 3600; }
    int hour() const {
        const int hour = moment_.second / 3600;
        if (!halfDays_) return hour;
        return hour % 12 == 0 ? 12 : hour % 12;
    }
    void writeHalf() {
        const bool brief = word_.size() == 3;
        QString half = morning() ? QStringLiteral("AM") : QStringLiteral("PM");
        if (brief) half.truncate(1);
        write(word_[0].isLower() ? half.toLower() : half);
    }
    QString timeText() const {
        return number(moment_.second / 3600) + u':' + number(moment_.second / 60 % 60, 2) + u':' +
               number(moment_.second % 60, 2);
    }
    QString kanjiDay() const { return QStringLiteral("日月火水木金土").mid(weekday_ - 1, 1); }
    QString englishDay() const {
        return QLatin1StringView(kEnglishDays[static_cast<std::size_t>(weekday_ - 1)]);
    }
    QString englishMonth() const {
        return QLatin1StringView(kEnglishMonths[static_cast<std::size_t>(day_.month - 1)]);
    }
    void writeDay(int run) {
        if (run <= 2) return write(number(day_.day, run));
        if (run == 3) return write(englishDay().left(3));
        if (run == 4) return write(englishDay());
        if (run == 5)
            return write(QStringLiteral("%1/%2/%3")
                             .arg(number(day_.year), number(day_.month, 2), number(day_.day, 2)));
        write(QStringLiteral("%1年%2月%3日").arg(day_.year).arg(day_.month).arg(day_.day));
    }
    void writeMonth(int run) {
        if (run <= 2) return write(number(day_.month, run));
        write(run == 3 ? englishMonth().left(3) : englishMonth());
    }
    void writeYear() {
        int run = takeRun(4);
        if (run == 4) return write(number(day_.year, 4));
        if (run == 3) at_ -= 1;
        write(run == 1 ? number(dayOfYear()) : number(day_.year % 100, 2));
    }
    int dayOfYear() const { return static_cast<int>(moment_.day - dayNumber(day_.year, 1, 1)) + 1; }
    /// Weeks begin on Sunday; the first is the one with January 1st.
    int week() const {
        const int firstWeekday = ((weekday_ - dayOfYear()) % 7 + 7) % 7;
        return (dayOfYear() - 1 + firstWeekday) / 7 + 1;
    }
    int eraYear() const {
        const Era* era = eraOfDay(moment_.day);
        return era ? day_.year - era->firstYear + 1 : day_.year;
    }
    void writeEra(int run) {
        const Era* era = eraOfDay(moment_.day);
        if (!era) return;
        write(run == 1 ? QString(QChar(era->letter)) : QString::fromUtf16(era->name).left(run - 1));
    }

    Moment moment_;
    CivilDay day_;
    int weekday_;
    QString mask_;
    bool halfDays_;
    bool behindHour_ = false;  // an "m" here means minutes
    qsizetype at_ = 0;
    QString word_;
    QString out_;
};

}  // namespace

QString formatDate(Date date, const QString& mask) {
    return DateMask(date, mask).text();
}

QString generalDateText(Date date) {
    const Moment moment = Moment::of(date);
    if (!moment.hasDay()) return formatDate(date, QStringLiteral("ttttt"));
    return formatDate(date, moment.hasTime() ? QStringLiteral("ddddd ttttt") : QStringLiteral("ddddd"));
}

}  // namespace akarix
