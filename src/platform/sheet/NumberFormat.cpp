#include "platform/sheet/NumberFormat.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "platform/runtime/Literals.h"
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

QString ExponentText(int exponent) {
    return u"E%1%2"_s.arg(QChar(exponent < 0 ? u'-' : u'+')).arg(std::abs(exponent), 2, 10, QLatin1Char('0'));
}

QString WithoutTrailingZeros(const Decimal::Parts& parts) {
    QByteArray fraction = parts.fraction;
    while (fraction.endsWith('0'))
        fraction.chop(1);
    QString text = QString::fromLatin1(parts.integer.isEmpty() ? QByteArrayLiteral("0") : parts.integer);
    if (!fraction.isEmpty()) text += u'.' + QString::fromLatin1(fraction);
    return text;
}

// As much of a number as eleven characters hold.
QString GeneralText(double magnitude) {
    const Decimal decimal = Decimal::of(magnitude);
    constexpr int widest = 11, mantissaPlaces = 5;
    const auto plain = decimal.rounded(std::max(0, widest - 1 - std::max(decimal.point, 1)));
    const bool tooSmall = decimal.point < -3 && decimal.digits.size() - decimal.point > widest - 2;
    if (decimal.digits.isEmpty() || (plain.integer.size() <= widest && !tooSmall))
        return WithoutTrailingZeros(plain);
    int exponent = decimal.point - 1;
    auto mantissa = Decimal{decimal.digits, 1}.rounded(mantissaPlaces);
    if (mantissa.integer.size() > 1) {
        ++exponent;
        mantissa = {QByteArrayLiteral("1"), QByteArray()};
    }
    return WithoutTrailingZeros(mantissa) + ExponentText(exponent);
}

QString BlankFor(const FormatToken& placeholder) {
    return placeholder.text == u"0" ? u"0"_s : placeholder.text == u"?" ? u" "_s : QString();
}

/// Writes a magnitude into the tokens of a section that shows numbers.
class NumberWriter {
 public:
    NumberWriter(const FormatSection& section, double magnitude)
        : section_(section), tokens_(section.tokens), out_(section.tokens.size()), magnitude_(magnitude) {}

    QString write() {
        for (size_t i = 0; i < tokens_.size(); ++i) {
            const Kind kind = tokens_[i].kind;
            out_[i] = kind == Kind::General || kind == Kind::Text ? GeneralText(magnitude_)
                      : kind == Kind::Digit                       ? QString()
                                                                  : tokens_[i].text;
            if (kind == Kind::General || kind == Kind::Text) zero_ = magnitude_ == 0;
        }
        writeDecimal();
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
            std::find_if(
                tokens_.begin(), tokens_.end(), [kind](const auto& t) { return t.kind == kind; }) -
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
        const size_t point = find(Kind::Point);
        const int places = digitsBetween(point, end);
        if (digitsBetween(0, point) + places == 0) return;
        Decimal decimal = Decimal::of(magnitude_);
        if (!decimal.digits.isEmpty()) decimal.point += section_.shift;

        const auto parts = decimal.rounded(places);
        zero_ = parts.isZero();
        writeInteger(parts.integer, point);
        writePlaces(parts.fraction, point, end);
    }

    // From the right; the leftmost placeholder takes all the digits that are left.
    void writeInteger(const QByteArray& digits, size_t to) {
        size_t leftmost = to;
        for (size_t i = to; i-- > 0;)
            if (isDigit(i)) leftmost = i;
        qsizetype left = digits.size();
        int written = 0;
        const auto prepend = [&](QString& out, QChar digit) {
            if (section_.grouping && written > 0 && written % 3 == 0)
                out.prepend(digit == u' ' ? u' ' : u',');
            out.prepend(digit);
            ++written;
        };
        for (size_t i = to; i-- > 0;) {
            if (!isDigit(i)) continue;
            if (left > 0)
                prepend(out_[i], QLatin1Char(digits[--left]));
            else if (const QString blank = BlankFor(tokens_[i]); !blank.isEmpty())
                prepend(out_[i], blank[0]);
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
            out_[i] = place < significant ? QString(QLatin1Char(digits[place])) : BlankFor(tokens_[i]);
            ++place;
        }
    }

    const FormatSection& section_;
    const std::vector<FormatToken>& tokens_;
    std::vector<QString> out_;
    double magnitude_;
    bool zero_ = false;
};

bool IsGeneral(const QString& code) {
    return code.isEmpty() || code.compare(u"General", Qt::CaseInsensitive) == 0;
}

// The sections that are for numbers: the fourth, or a last one that shows text, is for text alone.
size_t NumberSections(const std::vector<FormatSection>& sections) {
    if (sections.size() >= 4) return 3;
    return sections.size() > 1 && sections.back().text ? sections.size() - 1 : sections.size();
}

struct Chosen {
    const FormatSection* section;
    bool bare;  ///< the section says itself how a negative looks
};

Chosen ChooseSection(const std::vector<FormatSection>& sections, double value) {
    const size_t count = NumberSections(sections);
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
const std::vector<FormatSection>& SectionsOf(const QString& code) {
    constexpr std::size_t most = 500;
    static std::unordered_map<QString, std::vector<FormatSection>> known;
    const auto found = known.find(code);
    if (found != known.end()) return found->second;
    if (known.size() >= most) known.clear();
    return known.emplace(code, ParseFormatCode(code)).first->second;
}

}  // namespace

FormattedNumber FormatNumber(double value, const QString& code) {
    if (!std::isfinite(value)) return {u"#NUM!"_s, {}};
    const double magnitude = std::abs(value);
    const QString minus = value < 0 ? u"-"_s : QString();
    if (IsGeneral(code)) return {minus + GeneralText(magnitude), {}};

    const auto& sections = SectionsOf(code);
    const auto [section, bare] = ChooseSection(sections, value);
    if (!section) return {u"########"_s, {}};
    if (!section->known) return {minus + GeneralText(magnitude), section->color};
    if (section->date) return {FormatSerial(value, *section), section->color};
    if (section->tokens.empty()) {
        // A colour alone leaves the number as it is; an empty section hides it.
        return {section->color.isValid() && sections.size() == 1 ? minus + GeneralText(magnitude) : QString(),
                section->color};
    }
    NumberWriter writer(*section, magnitude);
    const QString text = writer.write();
    return {bare || writer.zero() ? text : minus + text, section->color};
}

QString FormatText(const QString& text, const QString& code) {
    if (text.isEmpty() || IsGeneral(code) || code == u"@") return text;
    const auto& sections = SectionsOf(code);
    const bool hasTextSection = sections.size() >= 4 || sections.back().text;
    if (!hasTextSection) return text;
    const FormatSection& section = sections.size() >= 4 ? sections[3] : sections.back();
    QString out;
    for (const FormatToken& token : section.tokens)
        out += token.kind == Kind::Text || token.kind == Kind::General ? text : token.text;
    return out;
}

bool IsKnownFormat(const QString& code) {
    const auto& sections = SectionsOf(code);
    return std::all_of(sections.begin(), sections.end(), [](const auto& section) { return section.known; });
}

bool IsDateFormat(const QString& code) {
    if (IsGeneral(code) || code == u"@") return false;
    const FormatSection& section = SectionsOf(code).front();
    return section.date && section.known;
}

}  // namespace akarix
