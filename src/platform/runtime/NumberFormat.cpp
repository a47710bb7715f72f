#include "platform/runtime/NumberFormat.h"

#include <QList>
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/runtime/FormatMask.h"

namespace akarix {

namespace {

/// One section of a mask, taken apart.
class NumberMask {
 public:
    explicit NumberMask(const QString& section) {
        for (qsizetype at = 0; at < section.size();) {
            if (const auto literal = takeQuoted(section, at)) {
                add(Part::Literal, *literal);
            } else {
                readCharacter(section, at);
            }
        }
        endWholePart();
    }

    /// The text of a number that is not negative; `isZero` tells whether rounding left nothing of it.
    QString apply(Decimal number, bool& isZero) const {
        number.point += number.isZero() ? 0 : 2 * percents_ - 3 * thousandths_;
        int exponent = 0;
        if (hasExponent_ && !number.isZero()) {
            exponent = number.point - wholeDigits_;
            number.point = wholeDigits_;
        }
        const int before = number.point;
        number.roundTo(decimals_);
        if (hasExponent_ && !number.isZero() && number.point > before) {
            ++exponent;
            number.point = wholeDigits_;
        }
        isZero = number.isZero();
        return Writer(*this, number, exponent).text();
    }

 private:
    struct Part {
        enum Kind { Literal, Digit, Point, Exponent } kind;
        QString text;       // of a literal; of an exponent its letter and sign
        bool zero = false;  // a digit that is always shown
        int minDigits = 0;  // of an exponent
    };

    void add(Part::Kind kind, const QString& text, bool zero = false, int minDigits = 0) {
        parts_.append(Part{kind, text, zero, minDigits});
    }

    void readCharacter(const QString& section, qsizetype& at) {
        const QChar c = section[at++];
        const QChar next = at < section.size() ? section[at] : QChar();
        if (c == u'0' || c == u'#') {
            add(Part::Digit, {}, c == u'0');
            if (pointSeen_) {
                ++decimals_;
            } else {
                ++wholeDigits_;
                grouped_ = grouped_ || commas_ > 0;
                commas_ = 0;
            }
        } else if (c == u'.' && !pointSeen_) {
            endWholePart();
            pointSeen_ = true;
            add(Part::Point, c);
        } else if (c == u',') {
            if (!pointSeen_) ++commas_;
        } else if (c.toLower() == u'e' && (next == u'+' || next == u'-') && !hasExponent_) {
            endWholePart();
            hasExponent_ = true;
            int minDigits = 0;
            const QString sign = QString(c) + next;
            for (++at; at < section.size() && (section[at] == u'0' || section[at] == u'#'); ++at)
                minDigits += section[at] == u'0' ? 1 : 0;
            add(Part::Exponent, sign, false, minDigits);
        } else {
            if (c == u'%') ++percents_;
            add(Part::Literal, c);
        }
    }

    /// Commas with no digit behind them any more divide by a thousand each.
    void endWholePart() {
        if (wholeDigits_ > 0) thousandths_ += commas_;
        commas_ = 0;
    }

    class Writer {
     public:
        Writer(const NumberMask& mask, const Decimal& number, int exponent)
            : mask_(mask), plain_(number.plainText()), exponent_(exponent) {
            const qsizetype point = plain_.indexOf(u'.');
            if (point >= 0) fraction_ = plain_.mid(point + 1);
            if (point >= 0) plain_.truncate(point);
            if (plain_ == u'0') plain_.clear();
            left_ = mask.wholeDigits_;
        }

        QString text() {
            for (const Part& part : mask_.parts_) {
                switch (part.kind) {
                    case Part::Literal:
                        out_ += part.text;
                        break;
                    case Part::Point:
                        if (mask_.wholeDigits_ == 0) out_ += plain_;
                        out_ += u'.';
                        inFraction_ = true;
                        break;
                    case Part::Digit:
                        if (inFraction_) {
                            writeDecimal(part.zero);
                        } else {
                            writeWholeDigit(part.zero);
                        }
                        break;
                    case Part::Exponent:
                        writeExponent(part);
                        break;
                }
            }
            return out_;
        }

     private:
        void writeGrouped(QChar digit, int place) {
            out_ += digit;
            if (mask_.grouped_ && place > 0 && place % 3 == 0) out_ += u',';
        }
        /// The place of a digit counts from the point; the first mark of the mask takes all places above its
        /// own too.
        void writeWholeDigit(bool zero) {
            zerosFrom_ = zerosFrom_ || zero;
            const int size = static_cast<int>(plain_.size());
            if (size < left_) {
                if (zerosFrom_) writeGrouped(u'0', left_ - 1);
            } else {
                const int top = left_ == mask_.wholeDigits_ ? size : left_;
                for (int place = top - 1; place >= left_ - 1; --place)
                    writeGrouped(plain_[size - 1 - place], place);
            }
            --left_;
        }
        void writeDecimal(bool zero) {
            const int place = decimal_++;
            if (place < fraction_.size()) {
                out_ += fraction_[place];
            } else if (zero || zeroFollows(place)) {
                out_ += u'0';
            }
        }
        bool zeroFollows(int place) const {
            int at = 0;
            bool behindPoint = false;
            for (const Part& part : mask_.parts_) {
                if (part.kind == Part::Point) behindPoint = true;
                if (part.kind == Part::Digit && behindPoint && at++ > place && part.zero) return true;
            }
            return false;
        }
        void writeExponent(const Part& part) {
            out_ += part.text[0];
            if (exponent_ < 0) {
                out_ += u'-';
            } else if (part.text[1] == u'+') {
                out_ += u'+';
            }
            out_ += QString::number(std::abs(exponent_)).rightJustified(part.minDigits, u'0');
        }

        const NumberMask& mask_;
        QString plain_;
        QString fraction_;
        QString out_;
        int exponent_;
        int left_ = 0;     // whole marks of the mask still to come
        int decimal_ = 0;  // decimals written
        bool inFraction_ = false;
        bool zerosFrom_ = false;  // a "0" stood further left
    };

    QList<Part> parts_;
    int wholeDigits_ = 0;
    int decimals_ = 0;
    int commas_ = 0;
    int thousandths_ = 0;
    int percents_ = 0;
    bool grouped_ = false;
    bool pointSeen_ = false;
    bool hasExponent_ = false;
};

/// A mask taken apart: one entry for each section that says something of its own.
struct MaskParts {
    explicit MaskParts(const QString& mask) {
        for (const QString& section : maskSections(mask)) {
            sections.push_back(section.isEmpty() && !sections.empty() ? std::nullopt
                                                                      : std::optional<NumberMask>(section));
        }
    }
    std::vector<std::optional<NumberMask>> sections;
};

/// The program's masks are few and each is used for thousands of cells.
const MaskParts& partsOf(const QString& mask) {
    constexpr std::size_t kMost = 200;
    static std::unordered_map<QString, MaskParts> known;
    const auto found = known.find(mask);
    if (found != known.end()) return found->second;
    if (known.size() >= kMost) known.clear();
    return known.try_emplace(mask, mask).first->second;
}

}  // namespace

QString formatNumber(const Decimal& number, const QString& mask) {
    const auto& sections = partsOf(mask).sections;
    const std::size_t wanted = number.negative ? 1 : number.isZero() ? 2 : 0;
    const bool own = wanted > 0 && wanted < sections.size() && sections[wanted];
    Decimal magnitude = number;
    magnitude.negative = false;
    bool isZero = false;
    const QString text = sections[own ? wanted : 0]->apply(magnitude, isZero);
    return number.negative && !own && !isZero ? u'-' + text : text;
}

}  // namespace akarix
