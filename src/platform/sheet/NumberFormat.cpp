#include "platform/sheet/NumberFormat.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "platform/runtime/Decimal.h"
#include "platform/runtime/Literals.h"
#include "platform/sheet/FormatCode.h"

namespace akarix {

namespace {

using Kind = FormatToken::Kind;

/// A magnitude rounded half away from zero to a number of places. It is rounded on the 15 digits that a
/// spreadsheet works with, not on the binary value, so that 1.005 to two places is 1.01.
struct Parts {
    QString integer;  ///< without leading zeros, so empty below 1
    QString fraction;

    Parts(Decimal number, int places) {
        number.roundTo(places);
        if (number.point > 0) integer = number.plainText().section(u'.', 0, 0);
        fraction = number.plainText().section(u'.', 1).leftJustified(places, u'0');
    }
    bool isZero() const { return integer.isEmpty() && fraction.count(u'0') == fraction.size(); }
};

// As much of a number as eleven characters hold.
QString GeneralText(double magnitude) {
    const Decimal exact = Decimal::of(magnitude);
    constexpr int widest = 11, mantissaDigits = 6;
    Decimal shown = exact;
    shown.roundTo(std::max(0, widest - 1 - std::max(exact.point, 1)));
    const bool tooSmall =
        exact.point < -3 && static_cast<int>(exact.digits.size()) - exact.point > widest - 2;
    if (exact.isZero() || (shown.point <= widest && !tooSmall)) return shown.plainText();
    shown = exact;
    shown.roundTo(mantissaDigits - exact.point);
    return shown.generalText(0);
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
        const size_t point = find(Kind::Point);
        const int places = digitsBetween(point, end);
        if (digitsBetween(0, point) + places == 0) return;
        Decimal decimal = Decimal::of(magnitude_);
        if (!decimal.isZero()) decimal.point += section_.shift;

        const Parts parts(decimal, places);
        zero_ = parts.isZero();
        writeInteger(parts.integer, point);
        writePlaces(parts.fraction, point, end);
    }

    // From the right; the leftmost placeholder takes all the digits that are left.
    void writeInteger(const QString& digits, size_t to) {
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
                prepend(out_[i], digits[--left]);
            else if (const QString blank = BlankFor(tokens_[i]); !blank.isEmpty())
                prepend(out_[i], blank[0]);
            while (i == leftmost && left > 0)
                prepend(out_[i], digits[--left]);
        }
    }

    void writePlaces(const QString& digits, size_t from, size_t to) {
        qsizetype significant = digits.size();
        while (significant > 0 && digits[significant - 1] == u'0')
            --significant;
        qsizetype place = 0;
        for (size_t i = from; i < to; ++i) {
            if (!isDigit(i)) continue;
            out_[i] = place < significant ? QString(digits[place]) : BlankFor(tokens_[i]);
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
