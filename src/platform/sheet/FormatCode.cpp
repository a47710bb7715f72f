#include "platform/sheet/FormatCode.h"

#include <algorithm>

#include "platform/runtime/Literals.h"
#include "platform/sheet/IndexedColor.h"

namespace akarix {

namespace {

using Kind = FormatToken::Kind;

QColor NamedColor(QStringView name) {
    struct Named {
        const char16_t* english;
        const char16_t* japanese;
        QRgb color;
    };
    static constexpr Named names[] = {{u"black", u"黒", 0xFF000000},   {u"blue", u"青", 0xFF0000FF},
                                      {u"cyan", u"水", 0xFF00FFFF},    {u"green", u"緑", 0xFF00FF00},
                                      {u"magenta", u"紫", 0xFFFF00FF}, {u"red", u"赤", 0xFFFF0000},
                                      {u"white", u"白", 0xFFFFFFFF},   {u"yellow", u"黄", 0xFFFFFF00}};
    for (const Named& named : names)
        if (name.compare(QStringView(named.english), Qt::CaseInsensitive) == 0 ||
            name == QStringView(named.japanese))
            return QColor(named.color);
    for (const QStringView prefix : {QStringView(u"color"), QStringView(u"色")}) {
        if (!name.startsWith(prefix, Qt::CaseInsensitive)) continue;
        const int number = name.mid(prefix.size()).trimmed().toInt();
        if (number >= 1 && number <= 56) return IndexedColor(number + 7);
    }
    return {};
}

std::optional<FormatCondition> ParseCondition(QStringView text) {
    using Op = FormatCondition::Op;
    static constexpr struct {
        const char16_t* sign;
        Op op;
    } signs[] = {{u"<=", Op::LessEqual}, {u">=", Op::GreaterEqual}, {u"<>", Op::NotEqual},
                 {u"<", Op::Less},       {u">", Op::Greater},       {u"=", Op::Equal}};
    for (const auto& [sign, op] : signs) {
        if (!text.startsWith(QStringView(sign))) continue;
        bool ok = false;
        const double limit = text.mid(QStringView(sign).size()).toDouble(&ok);
        if (!ok) return std::nullopt;
        return FormatCondition{op, limit};
    }
    return std::nullopt;
}

class Parser {
 public:
    explicit Parser(QStringView code) : code_(code) {}

    std::vector<FormatSection> parse() {
        sections_.emplace_back();
        while (at_ < code_.size())
            step();
        for (FormatSection& section : sections_)
            finish(section);
        return std::move(sections_);
    }

 private:
    FormatSection& section() { return sections_.back(); }
    void add(Kind kind, QString text = {}) { section().tokens.push_back({kind, std::move(text)}); }
    // A workbook of this country writes its yen sign as the backslash that code page 932 has at its place.
    void addLiteral(QStringView text) { add(Kind::Literal, text == u"\\" ? u"¥"_s : text.toString()); }
    bool behindDigit() {
        const auto& tokens = section().tokens;
        return !tokens.empty() && (tokens.back().kind == Kind::Digit || tokens.back().kind == Kind::Point);
    }
    /// An exponent, a fraction, a count of hours beyond the day or parts of a second: no paper of the house
    /// shows one.
    void notKnown() { section().known = false; }
    bool take(QStringView word) {
        if (!code_.mid(at_).startsWith(word, Qt::CaseInsensitive)) return false;
        at_ += word.size();
        return true;
    }

    void step() {
        if (take(u"General") || take(u"G/標準")) return add(Kind::General);
        if (take(u"AM/PM")) return add(Kind::Date, u"am/pm"_s);
        if (take(u"午前/午後")) {
            section().japaneseHalves = true;
            return add(Kind::Date, u"am/pm"_s);
        }
        if (behindDigit() && (take(u"E+") || take(u"E-"))) return notKnown();
        if (take(u"A/P")) return notKnown();
        const QChar c = code_[at_++];
        switch (c.unicode()) {
            case u';':
                sections_.emplace_back();
                return;
            case u'"': {
                const qsizetype end = code_.indexOf(u'"', at_);
                addLiteral(code_.mid(at_, end < 0 ? -1 : end - at_));
                at_ = end < 0 ? code_.size() : end + 1;
                return;
            }
            case u'\\':
            case u'!':
                if (at_ < code_.size()) addLiteral(code_.mid(at_++, 1));
                return;
            case u'_':  // the width of the next character
                ++at_;
                return addLiteral(u" ");
            case u'*':  // the next character fills the cell, which is a matter of alignment
                ++at_;
                return;
            case u'[':
                return bracket();
            case u'0':
            case u'#':
            case u'?':
                return add(Kind::Digit, c);
            case u'.':
                return add(Kind::Point, c);
            case u',':
                return add(Kind::Literal, u","_s);
            case u'/':
                if (behindDigit()) notKnown();
                return addLiteral(QStringView(&c, 1));
            case u'%':
                section().shift += 2;
                return add(Kind::Percent, c);
            case u'@':
                section().text = true;
                return add(Kind::Text);
            default:
                return letterOrLiteral(c);
        }
    }

    void letterOrLiteral(QChar c) {
        const QChar letter = c.toLower();
        if (!QStringView(u"ymdhsgear").contains(letter)) return addLiteral(QStringView(&c, 1));
        QString run = letter;
        while (at_ < code_.size() && code_[at_].toLower() == letter) {
            run += letter;
            ++at_;
        }
        if (letter == u'a' && run.size() < 3) return addLiteral(run);
        section().date = true;
        add(Kind::Date, run);
    }

    void bracket() {
        const qsizetype end = code_.indexOf(u']', at_);
        const QStringView inside = code_.mid(at_, end < 0 ? -1 : end - at_);
        at_ = end < 0 ? code_.size() : end + 1;
        if (inside.startsWith(u'$')) {
            const qsizetype dash = inside.indexOf(u'-');
            const QStringView symbol = inside.mid(1, dash < 0 ? -1 : dash - 1);
            if (!symbol.isEmpty()) addLiteral(symbol);
            const QStringView locale = dash < 0 ? QStringView() : inside.mid(dash + 1);
            if (locale.endsWith(u"411") || locale.startsWith(u"ja", Qt::CaseInsensitive))
                section().japaneseHalves = true;
            section().firstYearByName = section().firstYearByName || locale.contains(u"gannen");
            return;
        }
        const QString lower = inside.toString().toLower();
        if (!lower.isEmpty() && QStringView(u"hms").contains(lower[0]) &&
            lower.count(lower[0]) == lower.size()) {
            section().date = true;
            return notKnown();
        }
        if (const auto condition = ParseCondition(inside))
            section().condition = condition;
        else if (const QColor color = NamedColor(inside); color.isValid())
            section().color = color;
    }

    static void finish(FormatSection& section) {
        const auto holds = [&section](Kind kind) {
            return std::any_of(section.tokens.begin(), section.tokens.end(),
                               [kind](const FormatToken& token) { return token.kind == kind; });
        };
        section.date = section.date || holds(Kind::Date);
        section.known = section.known && !(section.date && holds(Kind::Digit));
        if (section.date)
            findMinutes(section);
        else
            takeCommas(section);
    }

    static bool isUnit(const FormatToken& token, QChar unit) {
        return token.kind == Kind::Date && token.text.startsWith(unit) && !token.text.contains(u'/');
    }

    static void findMinutes(FormatSection& section) {
        FormatToken* previous = nullptr;
        for (FormatToken& token : section.tokens) {
            if (token.kind != Kind::Date) continue;
            if (isUnit(token, u'm') && token.text.size() <= 2 && previous && isUnit(*previous, u'h'))
                token.kind = Kind::Minutes;
            else if (isUnit(token, u's') && previous && isUnit(*previous, u'm') && previous->text.size() <= 2)
                previous->kind = Kind::Minutes;
            previous = &token;
        }
    }

    // A comma between integer digits groups the thousands; one behind the digits divides by a thousand.
    static void takeCommas(FormatSection& section) {
        std::vector<FormatToken> kept;
        bool point = false, afterDigit = false;
        int pending = 0;
        for (const FormatToken& token : section.tokens) {
            const bool digit = token.kind == Kind::Digit;
            if (token.kind == Kind::Literal && token.text == u"," && afterDigit) {
                ++pending;
                continue;
            }
            if (pending > 0 && digit && !point)
                section.grouping = true;
            else
                section.shift -= 3 * pending;
            pending = 0;
            point = point || token.kind == Kind::Point;
            afterDigit = digit;
            kept.push_back(token);
        }
        section.shift -= 3 * pending;
        section.tokens = std::move(kept);
    }

    QStringView code_;
    qsizetype at_ = 0;
    std::vector<FormatSection> sections_;
};

}  // namespace

bool FormatCondition::holds(double value) const {
    switch (op) {
        case Op::Less:
            return value < limit;
        case Op::LessEqual:
            return value <= limit;
        case Op::Equal:
            return value == limit;
        case Op::NotEqual:
            return value != limit;
        case Op::GreaterEqual:
            return value >= limit;
        case Op::Greater:
            return value > limit;
    }
    return false;
}

std::vector<FormatSection> ParseFormatCode(const QString& code) {
    return Parser(code).parse();
}

}  // namespace akarix
