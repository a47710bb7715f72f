#include "platform/sheet/NumberFormat.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "platform/sheet/FormatCode.h"

namespace akarix {

namespace {

using Kind = FormatToken::Kind;

/// A number's magnitude as the 15 decimal digits that a spreadsheet works with: 0.DIGITS times 10^point.
/// Rounding on these, not on the binary value, makes 1.005 to two places 1.01.
struct Decimal {
    QByteArray digits;  ///< without zeros at either end; empty is zero
    int point = 0;

    static Decimal of(double magnitude) {
        Decimal decimal;
        if (magnitude == 0) return decimal;
        const QByteArray text = QByteArray::number(magnitude, 'e', 14);
        const qsizetype e = text.indexOf('e');
        decimal.digits = text.left(1) + text.mid(2, e - 2);
        decimal.point = text.mid(e + 1).toInt() + 1;
        while (decimal.digits.endsWith('0'))
            decimal.digits.chop(1);
        return decimal;
    }

    struct Parts {
        QByteArray integer;  ///< without leading zeros, so empty below 1
        QByteArray fraction;
        bool isZero() const { return integer.isEmpty() && fraction.count('0') == fraction.size(); }
    };

    /// Rounded half away from zero to a number of places.
    Parts rounded(int places) const {
        QByteArray kept = QByteArray(std::max(0, -point), '0') + digits;  // digits behind the integer part
        int integerDigits = std::max(0, point);
        const qsizetype wanted = integerDigits + places;
        const bool up = kept.size() > wanted && kept[wanted] >= '5';
        kept = kept.leftJustified(wanted, '0', true);
        if (up) {
            qsizetype i = wanted - 1;
            while (i >= 0 && kept[i] == '9')
                kept[i--] = '0';
            if (i >= 0) {
                kept[i] = static_cast<char>(kept[i] + 1);
            } else {
                kept.prepend('1');
                ++integerDigits;
            }
        }
        return {kept.left(integerDigits), kept.mid(integerDigits)};
    }
};

QString exponentText(int exponent, const QString& sign, int width) {
    const QString mark = exponent < 0 ? QStringLiteral("-") : sign == u"+" ? sign : QString();
    return QStringLiteral("E%1%2").arg(mark).arg(std::abs(exponent), width, 10, QLatin1Char('0'));
}

QString withoutTrailingZeros(const Decimal::Parts& parts) {
    QByteArray fraction = parts.fraction;
    while (fraction.endsWith('0'))
        fraction.chop(1);
    QString text = QString::fromLatin1(parts.integer.isEmpty() ? QByteArrayLiteral("0") : parts.integer);
    if (!fraction.isEmpty()) text += u'.' + QString::fromLatin1(fraction);
    return text;
}

// As much of a number as eleven characters hold.
QString generalText(double magnitude) {
    const Decimal decimal = Decimal::of(magnitude);
    constexpr int widest = 11, mantissaPlaces = 5;
    const auto plain = decimal.rounded(std::max(0, widest - 1 - std::max(decimal.point, 1)));
    const bool tooSmall = decimal.point < -3 && decimal.digits.size() - decimal.point > widest - 2;
    if (decimal.digits.isEmpty() || (plain.integer.size() <= widest && !tooSmall))
        return withoutTrailingZeros(plain);
    int exponent = decimal.point - 1;
    auto mantissa = Decimal{decimal.digits, 1}.rounded(mantissaPlaces);
    if (mantissa.integer.size() > 1) {
        ++exponent;
        mantissa = {QByteArrayLiteral("1"), QByteArray()};
    }
    return withoutTrailingZeros(mantissa) + exponentText(exponent, QStringLiteral("+"), 2);
}

QString blankFor(const FormatToken& placeholder) {
    return placeholder.text == u"0"   ? QStringLiteral("0")
           : placeholder.text == u"?" ? QStringLiteral(" ")
                                      : QString();
}

/// Writes a magnitude into the tokens of a section that shows numbers.
class NumberWriter {
 public:
    NumberWriter(const FormatSection& section, double magnitude)
        : section_(section), tokens_(section.tokens), out_(section.tokens.size()), magnitude_(magnitude) {}

    QString write() {
        for (size_t i = 0; i < tokens_.size(); ++i) {
            const Kind kind = tokens_[i].kind;
            out_[i] = kind == Kind::General || kind == Kind::Text     ? generalText(magnitude_)
                      : kind == Kind::Digit || kind == Kind::Exponent ? QString()
                                                                      : tokens_[i].text;
            if (kind == Kind::General || kind == Kind::Text) zero_ = magnitude_ == 0;
        }
        const size_t slash = fractionSlash();
        if (slash < tokens_.size()) {
            writeFraction(slash);
        } else {
            writeDecimal();
        }
        QString text;
        for (const QString& part : out_)
            text += part;
        return text;
    }
    /// Whether nothing but zeros was shown.
    bool zero() const { return zero_; }

 private:
    bool isDigit(size_t i) const { return i < tokens_.size() && tokens_[i].kind == Kind::Digit; }
    size_t find(Kind kind) const {
        return static_cast<size_t>(
            std::find_if(tokens_.begin(), tokens_.end(), [kind](const auto& t) { return t.kind == kind; }) -
            tokens_.begin());
    }
    int digitsBetween(size_t from, size_t to) const {
        int count = 0;
        for (size_t i = from; i < to && i < tokens_.size(); ++i)
            count += isDigit(i);
        return count;
    }

    void writeDecimal() {
        const size_t end = tokens_.size();
        const size_t exponentAt = find(Kind::Exponent);
        const size_t point = std::min(find(Kind::Point), exponentAt);
        const int integers = digitsBetween(0, point), places = digitsBetween(point, exponentAt);
        if (integers + places == 0) return;
        Decimal decimal = Decimal::of(magnitude_);
        if (!decimal.digits.isEmpty()) decimal.point += section_.shift;

        if (exponentAt < end) {
            const int step = std::max(integers, 1);
            int exponent = decimal.digits.isEmpty() ? 0 : floorTo(decimal.point - 1, step);
            const auto mantissa = [&] {
                return Decimal{decimal.digits, decimal.point - exponent}.rounded(places);
            };
            auto parts = mantissa();
            if (parts.integer.size() > step) {
                exponent += step;
                parts = mantissa();
            }
            zero_ = parts.isZero();
            writeInteger(parts.integer, 0, point);
            writePlaces(parts.fraction, point, exponentAt);
            out_[exponentAt] =
                exponentText(exponent, tokens_[exponentAt].text, digitsBetween(exponentAt, end));
            return;
        }
        const auto parts = decimal.rounded(places);
        zero_ = parts.isZero();
        writeInteger(parts.integer, 0, point);
        writePlaces(parts.fraction, point, end);
    }

    static int floorTo(int value, int step) {
        return static_cast<int>(std::floor(static_cast<double>(value) / step)) * step;
    }

    // From the right; the leftmost placeholder takes all the digits that are left.
    void writeInteger(const QByteArray& digits, size_t from, size_t to) {
        size_t leftmost = to;
        for (size_t i = to; i-- > from;) {
            if (isDigit(i)) leftmost = i;
        }
        qsizetype left = digits.size();
        int written = 0;
        const auto prepend = [&](QString& out, QChar digit) {
            if (section_.grouping && written > 0 && written % 3 == 0)
                out.prepend(digit == u' ' ? u' ' : u',');
            out.prepend(digit);
            ++written;
        };
        for (size_t i = to; i-- > from;) {
            if (!isDigit(i)) continue;
            if (left > 0) {
                prepend(out_[i], QLatin1Char(digits[--left]));
            } else if (const QString blank = blankFor(tokens_[i]); !blank.isEmpty()) {
                prepend(out_[i], blank[0]);
            }
            while (i == leftmost && left > 0)
                prepend(out_[i], QLatin1Char(digits[--left]));
        }
    }

    void writePlaces(const QByteArray& digits, size_t from, size_t to) {
        qsizetype significant = digits.size();
        while (significant > 0 && digits[significant - 1] == '0')
            --significant;
        qsizetype place = 0;
        for (size_t i = from; i < to; ++i) {
            if (!isDigit(i)) continue;
            out_[i] = place < significant ? QString(QLatin1Char(digits[place])) : blankFor(tokens_[i]);
            ++place;
        }
    }

    size_t fractionSlash() const {
        for (size_t i = 1; i + 1 < tokens_.size(); ++i) {
            if (tokens_[i].kind == Kind::Slash && isDigit(i - 1) &&
                (isDigit(i + 1) || !fixedDenominator(i).isEmpty())) {
                return i;
            }
        }
        return tokens_.size();
    }

    // The digits behind a slash where the code names the denominator itself, as in ?/16.
    QString fixedDenominator(size_t slash) const {
        QString text;
        bool fixed = false;
        for (size_t i = slash + 1; i < tokens_.size(); ++i) {
            const QString& part = tokens_[i].text;
            if (part.size() != 1 || part[0] < u'0' || part[0] > u'9') break;
            fixed = fixed || part[0] != u'0';
            text += part;
        }
        return fixed && text.size() <= 4 ? text : QString();
    }

    void writeFraction(size_t slash) {
        size_t numerator = slash;
        while (numerator > 0 && isDigit(numerator - 1))
            --numerator;
        const bool mixed = digitsBetween(0, numerator) > 0;
        const double whole = mixed ? std::floor(magnitude_) : 0;
        const double rest = magnitude_ - whole;

        const QString fixed = fixedDenominator(slash);
        size_t end = slash + 1;
        if (fixed.isEmpty()) {
            while (isDigit(end))
                ++end;
        } else {
            end += static_cast<size_t>(fixed.size());
        }
        auto [top, bottom] = nearestFraction(rest, fixed, static_cast<int>(end - slash - 1));
        double wholeShown = whole;
        if (mixed && top == bottom) {
            wholeShown += 1;
            top = 0;
        }
        zero_ = wholeShown == 0 && top == 0;
        if (mixed) writeInteger(Decimal::of(wholeShown).rounded(0).integer, 0, numerator);
        if (mixed && top == 0) {  // a whole number stands alone, its fraction's place left blank
            for (size_t i = numerator; i < end; ++i)
                out_[i] = QStringLiteral(" ");
            if (wholeShown == 0) out_[0] = QStringLiteral("0");
            return;
        }
        writeInteger(Decimal::of(static_cast<double>(top)).rounded(0).integer, numerator, slash);
        if (top == 0) out_[slash - 1] = QStringLiteral("0");
        const QString shown = QString::number(bottom);
        for (size_t i = slash + 1; i < end; ++i)
            out_[i].clear();
        out_[slash + 1] = shown.leftJustified(static_cast<int>(end - slash - 1), u' ');
    }

    static std::pair<qint64, qint64> nearestFraction(double value, const QString& fixed, int digits) {
        value = std::min(value, 1e12);
        if (!fixed.isEmpty()) return {std::llround(value * fixed.toDouble()), fixed.toLongLong()};
        const qint64 largest = digits >= 4 ? 9999 : digits == 3 ? 999 : digits == 2 ? 99 : 9;
        std::pair<qint64, qint64> best{std::llround(value), 1};
        double error = std::abs(value - static_cast<double>(best.first));
        for (qint64 bottom = 2; bottom <= largest && error > 1e-12; ++bottom) {
            const qint64 top = std::llround(value * static_cast<double>(bottom));
            const double off = std::abs(value - static_cast<double>(top) / static_cast<double>(bottom));
            if (off < error - 1e-12) {
                error = off;
                best = {top, bottom};
            }
        }
        return best;
    }

    const FormatSection& section_;
    const std::vector<FormatToken>& tokens_;
    std::vector<QString> out_;
    double magnitude_;
    bool zero_ = false;
};

bool isGeneral(const QString& code) {
    return code.isEmpty() || code.compare(u"General", Qt::CaseInsensitive) == 0;
}

// The sections that are for numbers: the fourth, or a last one that shows text, is for text alone.
size_t numberSections(const std::vector<FormatSection>& sections) {
    if (sections.size() >= 4) return 3;
    return sections.size() > 1 && sections.back().text ? sections.size() - 1 : sections.size();
}

struct Chosen {
    const FormatSection* section;
    bool bare;  ///< the section says itself how a negative looks
};

Chosen chooseSection(const std::vector<FormatSection>& sections, double value) {
    const size_t count = numberSections(sections);
    if (count == 1 && !sections[0].condition) return {&sections[0], false};
    const bool conditions = sections[0].condition || (count > 1 && sections[1].condition);
    if (!conditions) {
        if (value < 0) return {&sections[1], true};
        return {value == 0 && count > 2 ? &sections[2] : &sections[0], false};
    }
    const auto fits = [&](size_t i, bool otherwise) {
        return sections[i].condition ? sections[i].condition->holds(value) : otherwise;
    };
    const auto bare = [&](size_t i) {
        return sections[i].condition && sections[i].condition->onlyNegatives();
    };
    if (fits(0, value > 0)) return {&sections[0], bare(0)};
    if (count > 1 && fits(1, count == 2 || value < 0)) return {&sections[1], bare(1)};
    return {count > 2 ? &sections[2] : nullptr, false};
}

/// A sheet has few codes and many cells: each code is taken apart once.
const std::vector<FormatSection>& sectionsOf(const QString& code) {
    constexpr std::size_t most = 500;
    static std::unordered_map<QString, std::vector<FormatSection>> known;
    const auto found = known.find(code);
    if (found != known.end()) return found->second;
    if (known.size() >= most) known.clear();
    return known.emplace(code, ParseFormatCode(code)).first->second;
}

}  // namespace

FormattedNumber FormatNumber(double value, const QString& code) {
    if (!std::isfinite(value)) return {QStringLiteral("#NUM!"), {}};
    const double magnitude = std::abs(value);
    const QString minus = value < 0 ? QStringLiteral("-") : QString();
    if (isGeneral(code)) return {minus + generalText(magnitude), {}};

    const auto& sections = sectionsOf(code);
    const auto [section, bare] = chooseSection(sections, value);
    if (!section) return {QStringLiteral("########"), {}};
    if (section->date) return {FormatSerial(value, *section), section->color};
    if (section->tokens.empty()) {
        // A colour alone leaves the number as it is; an empty section hides it.
        return {section->color.isValid() && sections.size() == 1 ? minus + generalText(magnitude) : QString(),
                section->color};
    }
    NumberWriter writer(*section, magnitude);
    const QString text = writer.write();
    return {bare || writer.zero() ? text : minus + text, section->color};
}

QString FormatText(const QString& text, const QString& code) {
    if (text.isEmpty() || isGeneral(code) || code == u"@") return text;
    const auto& sections = sectionsOf(code);
    const bool hasTextSection = sections.size() >= 4 || sections.back().text;
    if (!hasTextSection) return text;
    const FormatSection& section = sections.size() >= 4 ? sections[3] : sections.back();
    QString out;
    for (const FormatToken& token : section.tokens) {
        out += token.kind == Kind::Text || token.kind == Kind::General ? text : token.text;
    }
    return out;
}

bool IsDateFormat(const QString& code) {
    if (isGeneral(code) || code == u"@") return false;
    return sectionsOf(code).front().date;
}

}  // namespace akarix
