#include "platform/jet/FunctionRules.h"

#include <algorithm>
#include <array>

#include "platform/jet/Coercion.h"
#include "platform/jet/DialectError.h"
#include "platform/jet/SqlFunctions.h"

namespace akarix {
namespace {

using Arguments = std::vector<BoundPtr>;

BoundPtr called(const char* function, Arguments arguments, Kind kind) {
    return makeBound(BoundCall{&sqlFunction(function), std::move(arguments)}, kind);
}

/// A function whose arguments are brought to fixed kinds and that has one engine function behind it.
struct PlainRule {
    QStringView name;
    const char* arguments;  // a letter each: T text, W whole, R real, D date
    Kind result;
    const char* function;
};

const std::array kPlainRules = {
    PlainRule{u"YEAR", "D", Kind::Integer, "akarix_year"},
    PlainRule{u"MONTH", "D", Kind::Integer, "akarix_month"},
    PlainRule{u"DAY", "D", Kind::Integer, "akarix_day"},
    PlainRule{u"DATESERIAL", "WWW", Kind::Date, "akarix_date_serial"},
    PlainRule{u"DATE", "", Kind::Date, "akarix_today"},
    PlainRule{u"NOW", "", Kind::Date, "akarix_now"},
    PlainRule{u"LEFT", "TW", Kind::Text, "akarix_left"},
    PlainRule{u"RIGHT", "TW", Kind::Text, "akarix_right"},
    PlainRule{u"LEN", "T", Kind::Integer, "akarix_len"},
    PlainRule{u"TRIM", "T", Kind::Text, "akarix_trim"},
    PlainRule{u"LTRIM", "T", Kind::Text, "akarix_ltrim"},
    PlainRule{u"RTRIM", "T", Kind::Text, "akarix_rtrim"},
    PlainRule{u"UCASE", "T", Kind::Text, "akarix_ucase"},
    PlainRule{u"LCASE", "T", Kind::Text, "akarix_lcase"},
    PlainRule{u"VAL", "T", Kind::Double, "akarix_val"},
    PlainRule{u"SGN", "R", Kind::Integer, "akarix_sign"},
};

BoundPtr bindPlain(const PlainRule& rule, const Arguments& given) {
    Arguments arguments;
    for (std::size_t i = 0; i < given.size(); ++i) {
        switch (rule.arguments[i]) {
            case 'T':
                arguments.push_back(toText(given[i]));
                break;
            case 'W':
                arguments.push_back(toWhole(given[i]));
                break;
            case 'R':
                arguments.push_back(toReal(given[i]));
                break;
            default:
                arguments.push_back(toDate(given[i]));
                break;
        }
    }
    return called(rule.function, std::move(arguments), rule.result);
}

BoundPtr inKind(const BoundPtr& expression, FieldType type) {
    auto made = std::make_shared<BoundExpression>(*expression);
    made->type = type;
    return made;
}

BoundPtr bindCDate(const Arguments& a) {
    return toDate(a[0]);
}

BoundPtr bindCInt(const Arguments& a) {
    return inKind(called("akarix_int16", {toWhole(a[0])}, Kind::Integer), FieldType::Integer);
}

BoundPtr bindCLng(const Arguments& a) {
    return called("akarix_int32", {toWhole(a[0])}, Kind::Integer);
}

BoundPtr bindCCur(const Arguments& a) {
    return toCurrency(a[0]);
}

BoundPtr bindCDbl(const Arguments& a) {
    return toReal(a[0]);
}

BoundPtr bindCStr(const Arguments& a) {
    return toText(a[0]);
}

BoundPtr bindIIf(const Arguments& a) {
    const Kind kind = commonKind(a[1]->kind, a[2]->kind);
    return makeBound(BoundChoice{a[0], toKind(a[1], kind), toKind(a[2], kind)}, kind);
}

BoundPtr bindIsNull(const Arguments& a) {
    return makeBound(BoundIsNull{a[0], false}, Kind::Boolean);
}

BoundPtr bindNz(const Arguments& a) {
    BoundPtr fallback = a.size() > 1 ? a[1] : nullptr;
    if (!fallback) {
        fallback = isNumber(a[0]->kind) || a[0]->kind == Kind::Date
                       ? makeWhole(0)
                       : makeBound(BoundLiteral{Literal{Literal::Kind::Text, QString()}}, Kind::Text);
    }
    const Kind kind = commonKind(a[0]->kind, fallback->kind);
    return called("akarix_nz", {toKind(a[0], kind), toKind(fallback, kind)}, kind);
}

/// Whole numbers stay, money and doubles have a function each.
BoundPtr bindCutting(const Arguments& a, const char* money, const char* real) {
    Arguments arguments = a;
    if (a[0]->kind == Kind::Integer || a[0]->kind == Kind::Boolean) return a[0];
    if (a[0]->kind != Kind::Currency) arguments[0] = toReal(a[0]);
    const bool currency = a[0]->kind == Kind::Currency;
    return called(currency ? money : real, std::move(arguments), currency ? Kind::Currency : Kind::Double);
}

BoundPtr bindInt(const Arguments& a) {
    return bindCutting(a, "akarix_int_currency", "akarix_int");
}

BoundPtr bindFix(const Arguments& a) {
    return bindCutting(a, "akarix_fix_currency", "akarix_fix");
}

BoundPtr bindRound(const Arguments& a) {
    return bindCutting({a[0], a.size() > 1 ? toWhole(a[1]) : makeWhole(0)}, "akarix_round_currency",
                       "akarix_round");
}

BoundPtr bindAbs(const Arguments& a) {
    const BoundPtr value = a[0]->kind == Kind::Text || a[0]->kind == Kind::Date ? toReal(a[0]) : a[0];
    const Kind kind = value->kind == Kind::Boolean ? Kind::Integer : value->kind;
    return called("akarix_abs", {value}, kind);
}

BoundPtr bindMid(const Arguments& a) {
    const BoundPtr length = a.size() > 2 ? toWhole(a[2]) : makeWhole(INT32_MAX);
    return called("akarix_mid", {toText(a[0]), toWhole(a[1]), length}, Kind::Text);
}

BoundPtr bindInStr(const Arguments& a) {
    const std::size_t text = a.size() > 2 ? 1 : 0;
    const BoundPtr start = text == 1 ? toWhole(a[0]) : makeWhole(1);
    return called("akarix_instr", {start, toText(a[text]), toText(a[text + 1])}, Kind::Integer);
}

BoundPtr bindFormat(const Arguments& a) {
    const BoundPtr mask = a.size() > 1 ? toText(a[1]) : nullptr;
    if (!mask) return toText(a[0]);
    switch (a[0]->kind) {
        case Kind::Currency:
            return called("akarix_format_currency", {a[0], mask}, Kind::Text);
        case Kind::Date:
            return called("akarix_format_date", {a[0], mask}, Kind::Text);
        case Kind::Text:
            return called("akarix_format_text", {a[0], mask}, Kind::Text);
        default:
            return called("akarix_format_real", {toReal(a[0]), mask}, Kind::Text);
    }
}

/// A function whose result depends on the kinds it is given.
struct SpecialRule {
    QStringView name;
    std::size_t fewest;
    std::size_t most;
    BoundPtr (*bind)(const Arguments&);
};

const std::array kSpecialRules = {
    SpecialRule{u"CDATE", 1, 1, bindCDate}, SpecialRule{u"CINT", 1, 1, bindCInt},
    SpecialRule{u"CLNG", 1, 1, bindCLng},   SpecialRule{u"CCUR", 1, 1, bindCCur},
    SpecialRule{u"CDBL", 1, 1, bindCDbl},   SpecialRule{u"CSTR", 1, 1, bindCStr},
    SpecialRule{u"IIF", 3, 3, bindIIf},     SpecialRule{u"ISNULL", 1, 1, bindIsNull},
    SpecialRule{u"NZ", 1, 2, bindNz},       SpecialRule{u"INT", 1, 1, bindInt},
    SpecialRule{u"FIX", 1, 1, bindFix},     SpecialRule{u"ROUND", 1, 2, bindRound},
    SpecialRule{u"ABS", 1, 1, bindAbs},     SpecialRule{u"MID", 2, 3, bindMid},
    SpecialRule{u"INSTR", 2, 3, bindInStr}, SpecialRule{u"FORMAT", 1, 2, bindFormat},
};

struct AggregateName {
    QStringView name;
    AggregateOp op;
};

const std::array kAggregates = {
    AggregateName{u"COUNT", AggregateOp::Count}, AggregateName{u"SUM", AggregateOp::Sum},
    AggregateName{u"AVG", AggregateOp::Average}, AggregateName{u"MIN", AggregateOp::Min},
    AggregateName{u"MAX", AggregateOp::Max},     AggregateName{u"FIRST", AggregateOp::First},
    AggregateName{u"LAST", AggregateOp::Last},
};

template <class Rules>
auto ruleNamed(const Rules& rules, const QString& name) {
    return std::find_if(rules.begin(), rules.end(),
                        [&](const auto& rule) { return name.compare(rule.name, Qt::CaseInsensitive) == 0; });
}

void checkCount(const QString& name, std::size_t given, std::size_t fewest, std::size_t most,
                qsizetype position) {
    if (given >= fewest && given <= most) return;
    throw dialectError(3075, QStringLiteral("クエリ式 '%1' で関数の引数の数が一致しません。(%2 文字目)")
                                 .arg(name)
                                 .arg(position + 1));
}

}  // namespace

BoundPtr bindFunction(const QString& name, std::vector<BoundPtr> arguments, qsizetype position) {
    if (const auto plain = ruleNamed(kPlainRules, name); plain != kPlainRules.end()) {
        const std::size_t count = qstrlen(plain->arguments);
        checkCount(name, arguments.size(), count, count, position);
        return bindPlain(*plain, arguments);
    }
    if (const auto special = ruleNamed(kSpecialRules, name); special != kSpecialRules.end()) {
        checkCount(name, arguments.size(), special->fewest, special->most, position);
        return special->bind(arguments);
    }
    throw unknownFunction(name, position);
}

std::optional<AggregateOp> aggregateNamed(const QString& name) {
    const auto found = ruleNamed(kAggregates, name);
    return found == kAggregates.end() ? std::nullopt : std::optional(found->op);
}

}  // namespace akarix
