#include "platform/runtime/Decimal.h"

#include <QLocale>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

Decimal OfScientific(const QByteArray& text) {
    Decimal d;
    const auto e = text.indexOf('e');
    for (char c : text.left(e)) {
        if (c == '-') d.negative = true;
        if (c >= '0' && c <= '9') d.digits += c;
    }
    d.point = text.mid(e + 1).toInt() + 1;
    d.normalise();
    return d;
}

int Length(const std::string& s) {
    return static_cast<int>(s.size());
}

}  // namespace

Decimal Decimal::of(double value, int significant) {
    if (!std::isfinite(value)) throw RuntimeError(6);
    return OfScientific(QByteArray::number(value, 'e', significant - 1));
}

Decimal Decimal::shortest(double value) {
    if (!std::isfinite(value)) throw RuntimeError(6);
    return OfScientific(QString::number(value, 'e', QLocale::FloatingPointShortest).toLatin1());
}

Decimal Decimal::of(std::int64_t value) {
    std::array<char, 20> text{};
    const auto magnitude =
        value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    const auto written = std::to_chars(text.begin(), text.end(), magnitude);
    Decimal d;
    d.negative = value < 0;
    d.digits.assign(text.begin(), written.ptr);
    d.point = Length(d.digits);
    d.normalise();
    return d;
}

Decimal Decimal::of(Currency value) {
    Decimal d = of(value.Scaled());
    if (!d.isZero()) d.point -= 4;
    return d;
}

std::optional<Decimal> Decimal::fromDigits(const QString& text) {
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (text.isEmpty() || !std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
    Decimal d;
    d.digits = text.toStdString();
    d.point = Length(d.digits);
    d.normalise();
    return d;
}

std::optional<Decimal> Decimal::fromPlain(const QString& text) {
    if (auto whole = fromDigits(text)) return whole;
    static const QRegularExpression form(uR"(\A([+-]?)([0-9]*)(?:\.([0-9]*))?(?:[EeDd]([+-]?[0-9]+))?\z)"_s);
    const auto m = form.match(text);
    if (!m.hasMatch()) return std::nullopt;
    const QString whole = m.captured(2);
    const QString fraction = m.captured(3);
    if (whole.isEmpty() && fraction.isEmpty()) return std::nullopt;
    Decimal d;
    d.negative = m.captured(1) == QLatin1String("-");
    d.digits = (whole + fraction).toStdString();
    // An exponent beyond a double's by far is cut, so that adding to it cannot leave the int.
    const QString exponent = m.captured(4);
    bool fits = true;
    int shift = exponent.isEmpty() ? 0 : exponent.toInt(&fits);
    if (!fits) shift = exponent.startsWith(u'-') ? -100000 : 100000;
    d.point = static_cast<int>(whole.size()) + std::clamp(shift, -100000, 100000);
    d.normalise();
    return d;
}

void Decimal::normalise() {
    const auto first = digits.find_first_not_of('0');
    if (first == std::string::npos) {
        digits.clear();
        point = 0;
        negative = false;
        return;
    }
    digits.erase(0, first);
    point -= static_cast<int>(first);
    digits.erase(digits.find_last_not_of('0') + 1);
}

void Decimal::roundTo(int places) {
    const int keep = point + places;
    if (keep >= Length(digits)) return;
    if (keep < 0) {
        digits.clear();
    } else {
        const bool up = digits[static_cast<std::size_t>(keep)] >= '5';
        digits.resize(static_cast<std::size_t>(keep));
        if (up) {
            auto i = digits.size();
            while (i > 0 && digits[i - 1] == '9')
                digits[--i] = '0';
            if (i > 0) {
                ++digits[i - 1];
            } else {
                digits.insert(digits.begin(), '1');
                ++point;
            }
        }
    }
    normalise();
}

std::int64_t Decimal::scaled(int places) const {
    const int keep = point + places;
    if (keep > 19) throw RuntimeError(6);
    if (keep < 0) return 0;
    __extension__ using Wide = __int128;
    Wide value = 0;
    for (int i = 0; i < keep; ++i)
        value = value * 10 + (i < Length(digits) ? digits[static_cast<std::size_t>(i)] - '0' : 0);
    if (keep < Length(digits)) {
        const char next = digits[static_cast<std::size_t>(keep)];
        const bool exactHalf = next == '5' && keep + 1 == Length(digits);
        if (next > '5' || (next == '5' && !exactHalf) || (exactHalf && value % 2 != 0)) ++value;
    }
    if (negative) value = -value;
    if (value > std::numeric_limits<std::int64_t>::max() || value < std::numeric_limits<std::int64_t>::min())
        throw RuntimeError(6);
    return static_cast<std::int64_t>(value);
}

double Decimal::toDouble() const {
    if (isZero()) return 0.0;
    if (point > 400) throw RuntimeError(6);
    if (point < -400) return 0.0;
    const QByteArray text =
        (negative ? "-0." : "0.") + QByteArray::fromStdString(digits) + 'e' + QByteArray::number(point);
    const double value = text.toDouble();
    if (!std::isfinite(value)) throw RuntimeError(6);
    return value;
}

QString Decimal::plainText() const {
    const int whole = std::max(point, 0);
    const int given = std::min(whole, Length(digits));
    std::string text;
    if (negative) text += '-';
    text.append(digits, 0, static_cast<std::size_t>(given));
    text.append(static_cast<std::size_t>(whole - given), '0');
    if (whole == 0) text += '0';
    if (Length(digits) > point) {
        text += '.';
        text.append(static_cast<std::size_t>(whole - point), '0');
        text.append(digits, static_cast<std::size_t>(given));
    }
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString Decimal::generalText(int significant) const {
    const int placesBehind = Length(digits) - point;
    if (isZero() || (point > 0 && point <= significant) || (point <= 0 && placesBehind <= significant))
        return plainText();
    const int exponent = point - 1;
    QString text = negative ? u"-"_s : QString();
    text += QLatin1Char(digits[0]);
    if (Length(digits) > 1) text += u'.' + QString::fromStdString(digits.substr(1));
    text += exponent < 0 ? u"E-"_s : u"E+"_s;
    return text + QString::number(std::abs(exponent)).rightJustified(2, u'0');
}

}  // namespace akarix
