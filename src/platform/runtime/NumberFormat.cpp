#include "platform/runtime/FormatMask.h"

#include <QList>
#include <optional>
#include <unordered_map>
#include <vector>

namespace akarix {

namespace {

/// One section of a mask, taken apart.
class NumberMask {
 public:
    explicit NumberMask(const QString& section) {
        for (qsizetype at = 0; at < section.size();)
            if (const auto literal = TakeQuoted(section, at))
                add(Part::Literal, *literal);
            else
                readCharacter(section, at);
    }

    /// The text of a number that is not negative; `isZero` tells whether rounding left nothing of it.
    QString apply(Decimal number, bool& isZero) const {
        number.roundTo(decimals_);
        isZero = number.isZero();
        return Writer(*this, number).text();
    }

 private:
    struct Part {
        enum Kind { Literal, Digit, Point } kind;
        QString text;       // of a literal
        bool zero = false;  // a digit that is always shown
    };

    void add(Part::Kind kind, const QString& text, bool zero = false) {
        parts_.append(Part{kind, text, zero});
    }

    void readCharacter(const QString& section, qsizetype& at) {
        const QChar c = section[at++];
        if (c == u'0' || c == u'#') {
            add(Part::Digit, {}, c == u'0');
            if (pointSeen_) {
                ++decimals_;
            } else {
                ++wholeDigits_;
                grouped_ = grouped_ || commaSeen_;
            }
        } else if (c == u'.' && !pointSeen_) {
            pointSeen_ = true;
            add(Part::Point, c);
        } else if (c == u',') {
            commaSeen_ = commaSeen_ || !pointSeen_;
        } else {
            add(Part::Literal, c);
        }
    }

    class Writer {
     public:
        Writer(const NumberMask& mask, const Decimal& number) : mask_(mask), plain_(number.plainText()) {
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
                        if (inFraction_)
                            writeDecimal(part.zero);
                        else
                            writeWholeDigit(part.zero);
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
            if (place < fraction_.size())
                out_ += fraction_[place];
            else if (zero || zeroFollows(place))
                out_ += u'0';
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
        const NumberMask& mask_;
        QString plain_;
        QString fraction_;
        QString out_;
        int left_ = 0;     // whole marks of the mask still to come
        int decimal_ = 0;  // decimals written
        bool inFraction_ = false;
        bool zerosFrom_ = false;  // a "0" stood further left
    };

    QList<Part> parts_;
    int wholeDigits_ = 0;
    int decimals_ = 0;
    bool commaSeen_ = false;
    bool grouped_ = false;
    bool pointSeen_ = false;
};

/// A mask taken apart: one entry for each section that says something of its own.
struct MaskParts {
    explicit MaskParts(const QString& mask) {
        for (const QString& section : MaskSections(mask)) {
            sections.push_back(section.isEmpty() && !sections.empty() ? std::nullopt
                                                                      : std::optional<NumberMask>(section));
        }
    }
    std::vector<std::optional<NumberMask>> sections;
};

/// The program's masks are few and each is used for thousands of cells.
const MaskParts& PartsOf(const QString& mask) {
    constexpr std::size_t kMost = 200;
    static std::unordered_map<QString, MaskParts> known;
    const auto found = known.find(mask);
    if (found != known.end()) return found->second;
    if (known.size() >= kMost) known.clear();
    return known.try_emplace(mask, mask).first->second;
}

}  // namespace

QString FormatDecimal(const Decimal& number, const QString& mask) {
    const auto& sections = PartsOf(mask).sections;
    const std::size_t wanted = number.negative ? 1 : number.isZero() ? 2 : 0;
    const bool own = wanted > 0 && wanted < sections.size() && sections[wanted];
    Decimal magnitude = number;
    magnitude.negative = false;
    bool isZero = false;
    const QString text = sections[own ? wanted : 0]->apply(magnitude, isZero);
    return number.negative && !own && !isZero ? u'-' + text : text;
}

}  // namespace akarix
