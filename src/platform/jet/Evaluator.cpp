#include "platform/jet/Evaluator.h"

#include <optional>

#include "platform/jet/LikePattern.h"
#include "platform/jet/SqlFunctions.h"
#include "platform/jet/TextFold.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

using Truth = std::optional<bool>;

bool isNull(const StoreValue& value) {
    return std::holds_alternative<std::monostate>(value);
}

StoreValue asValue(Truth truth) {
    if (!truth) return std::monostate();
    return std::int64_t{*truth ? -1 : 0};
}

double real(const StoreValue& value) {
    const auto* whole = std::get_if<std::int64_t>(&value);
    return whole ? static_cast<double>(*whole) : std::get<double>(value);
}

std::optional<int> order(const StoreValue& a, const StoreValue& b) {
    if (isNull(a) || isNull(b)) return std::nullopt;
    if (const auto* text = std::get_if<QString>(&a)) return compareTexts(*text, std::get<QString>(b));
    const auto* left = std::get_if<std::int64_t>(&a);
    const auto* right = std::get_if<std::int64_t>(&b);
    if (left && right) return *left < *right ? -1 : *left > *right ? 1 : 0;
    return real(a) < real(b) ? -1 : real(a) > real(b) ? 1 : 0;
}

Truth compared(CompareOp op, const StoreValue& a, const StoreValue& b) {
    const auto place = order(a, b);
    if (!place) return std::nullopt;
    switch (op) {
        case CompareOp::Equal:
            return *place == 0;
        case CompareOp::NotEqual:
            return *place != 0;
        case CompareOp::Less:
            return *place < 0;
        case CompareOp::LessEqual:
            return *place <= 0;
        case CompareOp::Greater:
            return *place > 0;
        case CompareOp::GreaterEqual:
            return *place >= 0;
    }
    return std::nullopt;
}

Truth negatedIf(bool negated, Truth truth) {
    if (!truth) return truth;
    return *truth != negated;
}

Truth bothOf(Truth a, Truth b) {
    if ((a && !*a) || (b && !*b)) return false;
    if (!a || !b) return std::nullopt;
    return true;
}

StoreValue calculated(NativeOp op, const StoreValue& a, const StoreValue& b) {
    if (isNull(a) || isNull(b)) return std::monostate();
    if (op == NativeOp::Join) return std::get<QString>(a) + std::get<QString>(b);
    const auto* left = std::get_if<std::int64_t>(&a);
    const auto* right = std::get_if<std::int64_t>(&b);
    if (left && right) {
        std::int64_t result = 0;
        const bool over = op == NativeOp::Add        ? __builtin_add_overflow(*left, *right, &result)
                          : op == NativeOp::Subtract ? __builtin_sub_overflow(*left, *right, &result)
                                                     : __builtin_mul_overflow(*left, *right, &result);
        if (over) throw RuntimeError(6);
        return result;
    }
    switch (op) {
        case NativeOp::Add:
            return real(a) + real(b);
        case NativeOp::Subtract:
            return real(a) - real(b);
        default:
            return real(a) * real(b);
    }
}

StoreValue changed(Conversion conversion, const StoreValue& value) {
    if (isNull(value)) return value;
    constexpr auto kScale = static_cast<double>(Currency::kScale);
    switch (conversion) {
        case Conversion::WholeToCurrency:
            return calculated(NativeOp::Multiply, value, Currency::kScale);
        case Conversion::RealToScaled:
            return real(value) * kScale;
        case Conversion::WholeToReal:
            return real(value);
        case Conversion::CurrencyToReal:
            return real(value) / kScale;
        case Conversion::WholeToText:
            return QString::number(std::get<std::int64_t>(value));
        case Conversion::NumberToBoolean:
            return std::int64_t{real(value) != 0 ? -1 : 0};
    }
    return value;
}

struct Evaluator {
    const std::vector<StoreValue>& row;

    StoreValue value(const BoundPtr& expression) const { return std::visit(*this, expression->node); }
    Truth truth(const BoundPtr& expression) const {
        const StoreValue result = value(expression);
        if (isNull(result)) return std::nullopt;
        return real(result) != 0;
    }

    StoreValue operator()(const BoundColumn& n) const { return row[static_cast<std::size_t>(n.column)]; }
    StoreValue operator()(const BoundLiteral& n) const { return literalValue(n.literal, n.negated, n.use); }
    StoreValue operator()(const BoundNull&) const { return std::monostate(); }
    StoreValue operator()(const BoundBoolean& n) const { return asValue(n.value); }
    StoreValue operator()(const BoundNegation& n) const {
        return calculated(NativeOp::Subtract, std::int64_t{0}, value(n.operand));
    }
    StoreValue operator()(const BoundArithmetic& n) const {
        return calculated(n.op, value(n.left), value(n.right));
    }
    StoreValue operator()(const BoundConversion& n) const { return changed(n.conversion, value(n.operand)); }
    StoreValue operator()(const BoundCall& n) const {
        std::vector<StoreValue> arguments;
        for (const BoundPtr& argument : n.arguments) {
            arguments.push_back(value(argument));
            if (!n.function->takesNull && isNull(arguments.back())) return std::monostate();
        }
        return n.function->run(arguments.data());
    }
    StoreValue operator()(const BoundNot& n) const { return asValue(negatedIf(true, truth(n.operand))); }
    StoreValue operator()(const BoundLogic& n) const {
        const Truth a = truth(n.left);
        const Truth b = truth(n.right);
        switch (n.op) {
            case LogicOp::And:
                return asValue(bothOf(a, b));
            case LogicOp::Or:
                return asValue(negatedIf(true, bothOf(negatedIf(true, a), negatedIf(true, b))));
            case LogicOp::Xor:
                break;
        }
        return asValue(a && b ? Truth(*a != *b) : std::nullopt);
    }
    StoreValue operator()(const BoundComparison& n) const {
        return asValue(compared(n.op, value(n.left), value(n.right)));
    }
    StoreValue operator()(const BoundIsNull& n) const {
        return asValue(isNull(value(n.operand)) != n.negated);
    }
    StoreValue operator()(const BoundLike& n) const {
        const StoreValue text = value(n.operand);
        const StoreValue pattern = value(n.pattern);
        if (isNull(text) || isNull(pattern)) return std::monostate();
        return asValue(likeMatches(std::get<QString>(pattern), std::get<QString>(text)) != n.negated);
    }
    StoreValue operator()(const BoundInList& n) const {
        const StoreValue wanted = value(n.operand);
        Truth found = false;
        for (const BoundPtr& item : n.items) {
            const Truth same = compared(CompareOp::Equal, wanted, value(item));
            if (same && *same) return asValue(negatedIf(n.negated, true));
            if (!same) found = std::nullopt;
        }
        return asValue(negatedIf(n.negated, found));
    }
    StoreValue operator()(const BoundChoice& n) const {
        const Truth condition = truth(n.condition);
        return value(condition && *condition ? n.then : n.otherwise);
    }
    // The binder of a condition on rows in memory lets neither queries nor aggregates through.
    template <class Other>
    StoreValue operator()(const Other&) const {
        throw RuntimeError(3075);
    }
};

}  // namespace

StoreValue evaluate(const BoundExpression& expression, const std::vector<StoreValue>& row) {
    return std::visit(Evaluator{row}, expression.node);
}

}  // namespace akarix
