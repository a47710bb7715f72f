#include "platform/runtime/DateText.h"

#include "platform/runtime/Calendar.h"
#include "platform/runtime/FormatMask.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

QString Number(int value, int width = 1) {
    return QString::number(value).rightJustified(width, u'0');
}

class DateMask {
 public:
    DateMask(Date date, const QString& mask)
        : moment_(Moment::of(date)), day_(moment_.civil()), mask_(mask) {}

    QString text() {
        while (at_ < mask_.size())
            if (const auto literal = TakeQuoted(mask_, at_))
                out_ += *literal;
            else
                takeCode();
        return out_;
    }

 private:
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
        const QChar code = mask_[at_].toLower();
        const bool minutes = code == u'n' || (code == u'm' && behindHour_);
        if (code >= u'a' && code <= u'z') behindHour_ = code == u'h';
        if (minutes) return write(moment_.second / 60 % 60, takeRun(2));
        switch (code.unicode()) {
            case u'd':
                return write(day_.day, takeRun(2));
            case u'm':
                return write(day_.month, takeRun(2));
            case u'y':
                return takeRun(4) == 4 ? write(day_.year, 4) : write(day_.year % 100, 2);
            case u'g':
                return writeEra(takeRun(3));
            case u'e':
                return write(eraYear(), takeRun(2));
            case u'h':
                return write(moment_.second / 3600, takeRun(2));
            case u's':
                return write(moment_.second % 60, takeRun(2));
            default:
                out_ += mask_[at_++];
        }
    }

    void write(int value, int width) { out_ += Number(value, width); }
    int eraYear() const {
        const Era* era = EraOfDay(moment_.day);
        return era ? day_.year - era->firstYear + 1 : day_.year;
    }
    void writeEra(int run) {
        const Era* era = EraOfDay(moment_.day);
        if (!era) return;
        out_ += run == 1 ? QString(QChar(era->letter)) : QString::fromUtf16(era->name).left(run - 1);
    }

    Moment moment_;
    CivilDay day_;
    QString mask_;
    bool behindHour_ = false;  // an "m" here means minutes
    qsizetype at_ = 0;
    QString out_;
};

}  // namespace

QString FormatDate(Date date, const QString& mask) {
    return DateMask(date, mask).text();
}

QString GeneralDateText(Date date) {
    const Moment moment = Moment::of(date);
    const CivilDay day = moment.civil();
    QString text;
    if (moment.hasDay()) text = Number(day.year) + u'/' + Number(day.month, 2) + u'/' + Number(day.day, 2);
    if (moment.hasDay() && !moment.hasTime()) return text;
    if (moment.hasDay()) text += u' ';
    return text + FormatDate(date, u"h:nn:ss"_s);
}

}  // namespace akarix
