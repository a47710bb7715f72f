#include "platform/cipher/SqlFunctions.h"
#include "platform/cipher/Writer.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr char kFold[] = " COLLATE AKARIX_TEXT";

const char* SymbolOf(CompareOp op) {
    switch (op) {
        case CompareOp::Equal:
            return "=";
        case CompareOp::NotEqual:
            return "<>";
        case CompareOp::Less:
            return "<";
        case CompareOp::LessEqual:
            return "<=";
        case CompareOp::Greater:
            return ">";
        case CompareOp::GreaterEqual:
            return ">=";
    }
    return "=";
}

const char* SymbolOf(NativeOp op) {
    switch (op) {
        case NativeOp::Add:
            return "+";
        case NativeOp::Subtract:
            return "-";
        case NativeOp::Multiply:
            return "*";
    }
    return "+";
}

int RankOf(NativeOp op) {
    return op == NativeOp::Multiply ? 1 : 0;
}

const char* NameOf(AggregateOp op) {
    switch (op) {
        case AggregateOp::Count:
            return "COUNT";
        case AggregateOp::Sum:
            return "SUM";
        case AggregateOp::Max:
            return "MAX";
        case AggregateOp::First:
            return "akarix_first";
    }
    return "COUNT";
}

struct Wrapping {
    const char* before;
    const char* behind;
};

Wrapping WrappingOf(Conversion conversion) {
    switch (conversion) {
        case Conversion::WholeToCurrency:
            return {"(", "*10000)"};
        case Conversion::RealToScaled:
            return {"(", "*10000.0)"};
        case Conversion::WholeToReal:
            return {"CAST(", " AS REAL)"};
        case Conversion::CurrencyToReal:
            return {"(", "/10000.0)"};
        case Conversion::WholeToText:
            return {"CAST(", " AS TEXT)"};
        case Conversion::NumberToBoolean:
            return {"(-(", "<>0))"};
    }
    return {"(", ")"};
}

/// Truth values of the engine, 1 and 0, unlike those of the dialect, -1 and 0.
template <class Node>
constexpr bool kIsTest = std::is_same_v<Node, BoundNot> || std::is_same_v<Node, BoundLogic> ||
                         std::is_same_v<Node, BoundComparison> || std::is_same_v<Node, BoundIsNull> ||
                         std::is_same_v<Node, BoundLike>;

}  // namespace

void Writer::value(const BoundExpression& expression) {
    std::visit(
        [this](const auto& n) {
            if constexpr (kIsTest<std::decay_t<decltype(n)>>) {
                out_ += "(-(";
                test(n);
                out_ += "))";
            } else {
                node(n);
            }
        },
        expression.node);
}

void Writer::condition(const BoundExpression& expression) {
    std::visit(
        [&](const auto& n) {
            if constexpr (kIsTest<std::decay_t<decltype(n)>>) {
                test(n);
            } else {
                node(n);
                out_ += "<>0";
            }
        },
        expression.node);
}

QByteArray Writer::valueText(const BoundExpression& expression) {
    QByteArray before;
    out_.swap(before);
    value(expression);
    out_.swap(before);
    return before;
}

void Writer::list(const std::vector<BoundPtr>& expressions) {
    bool first = true;
    for (const BoundPtr& one : expressions) {
        if (!first) out_ += ',';
        first = false;
        value(*one);
    }
}

void Writer::node(const BoundColumn& n) {
    out_ += columnText(*n.table, n.column);
}

void Writer::node(const BoundLiteral& n) {
    if (n.lifted < 0) {
        constant(LiteralFor(n.target, n.literal, n.negated, n.use));
        return;
    }
    const Slot slot{n.lifted, n.negated, n.use, n.target};
    std::size_t place = 0;
    while (place < parameters_.size() && !(parameters_[place] == slot))
        ++place;
    if (place == parameters_.size()) parameters_.push_back(slot);
    out_ += '?' + QByteArray::number(static_cast<qulonglong>(place + 1));
}

void Writer::constant(const StoreValue& constant) {
    if (const auto* whole = std::get_if<std::int64_t>(&constant))
        out_ += '(' + QByteArray::number(static_cast<qlonglong>(*whole)) + ')';
    else if (const auto* real = std::get_if<double>(&constant))
        out_ += '(' + QByteArray::number(*real, 'e', 17) + ')';
    else if (const auto* text = std::get_if<QString>(&constant))
        out_ += '\'' + QString(*text).replace(u'\'', u"''"_s).toUtf8() + '\'';
    else
        out_ += "NULL";
}

void Writer::node(const BoundNull&) {
    out_ += "NULL";
}

void Writer::node(const BoundNegation& n) {
    out_ += "(-";
    value(*n.operand);
    out_ += ')';
}

void Writer::node(const BoundArithmetic& n) {
    out_ += '(';
    arithmetic(n);
    out_ += ')';
}

void Writer::arithmetic(const BoundArithmetic& n) {
    // A chain is written without parentheses, of which the engine takes a limited depth.
    const auto* inner = std::get_if<BoundArithmetic>(&n.left->node);
    if (inner && RankOf(inner->op) == RankOf(n.op))
        arithmetic(*inner);
    else
        value(*n.left);
    out_ += SymbolOf(n.op);
    value(*n.right);
}

void Writer::node(const BoundConversion& n) {
    const Wrapping wrapping = WrappingOf(n.conversion);
    out_ += wrapping.before;
    value(*n.operand);
    out_ += wrapping.behind;
}

void Writer::node(const BoundCall& n) {
    computes_ = true;
    out_ += n.function->name;
    out_ += '(';
    list(n.arguments);
    out_ += ')';
}

void Writer::node(const BoundAggregate& n) {
    computes_ = true;
    out_ += akarix::NameOf(n.op);
    out_ += '(';
    if (!n.operand) {
        out_ += '*';
    } else {
        value(*n.operand);
        if (n.op == AggregateOp::Max && n.operand->kind == Kind::Text) out_ += kFold;
        if (n.op == AggregateOp::First) {
            // The engine feeds groups in no settled order: the row's place comes along.
            for (const OrderTerm& term : naturalOrder(*aggregated_))
                out_ += ',' + term.text;
        }
    }
    out_ += ')';
}

void Writer::test(const BoundNot& n) {
    out_ += "NOT (";
    condition(*n.operand);
    out_ += ')';
}

void Writer::test(const BoundLogic& n) {
    logicOperand(n.left, n.op);
    out_ += n.op == LogicOp::And ? " AND " : " OR ";
    out_ += '(';
    condition(*n.right);
    out_ += ')';
}

void Writer::logicOperand(const BoundPtr& operand, LogicOp op) {
    const auto* inner = std::get_if<BoundLogic>(&operand->node);
    const bool chain = inner && inner->op == op;
    if (!chain) out_ += '(';
    condition(*operand);
    if (!chain) out_ += ')';
}

void Writer::test(const BoundComparison& n) {
    value(*n.left);
    out_ += SymbolOf(n.op);
    value(*n.right);
    if (n.left->kind == Kind::Text || n.right->kind == Kind::Text) out_ += kFold;
}

void Writer::test(const BoundIsNull& n) {
    value(*n.operand);
    out_ += n.negated ? " IS NOT NULL" : " IS NULL";
}

void Writer::test(const BoundLike& n) {
    computes_ = true;
    if (n.negated) out_ += "NOT ";
    out_ += "akarix_like(";
    value(*n.pattern);
    out_ += ',';
    value(*n.operand);
    out_ += ')';
}

QByteArray Writer::nameOf(const BoundTable& table) const {
    if (&table == itself_) return Quoted(table.definition->name);
    return 't' + QByteArray::number(table.id);
}

QByteArray Writer::columnText(const BoundTable& table, int column) const {
    return nameOf(table) + '.' + Quoted(table.definition->columns[static_cast<std::size_t>(column)].name);
}

}  // namespace akarix
