#include "platform/dialect/BoundExpression.h"

#include "platform/dialect/BoundQuery.h"

namespace akarix {
namespace {

struct Operands {
    std::vector<BoundPtr> operator()(const BoundNegation& n) const { return {n.operand}; }
    std::vector<BoundPtr> operator()(const BoundArithmetic& n) const { return {n.left, n.right}; }
    std::vector<BoundPtr> operator()(const BoundConversion& n) const { return {n.operand}; }
    std::vector<BoundPtr> operator()(const BoundCall& n) const { return n.arguments; }
    std::vector<BoundPtr> operator()(const BoundNot& n) const { return {n.operand}; }
    std::vector<BoundPtr> operator()(const BoundLogic& n) const { return {n.left, n.right}; }
    std::vector<BoundPtr> operator()(const BoundComparison& n) const { return {n.left, n.right}; }
    std::vector<BoundPtr> operator()(const BoundIsNull& n) const { return {n.operand}; }
    std::vector<BoundPtr> operator()(const BoundLike& n) const { return {n.operand, n.pattern}; }
    std::vector<BoundPtr> operator()(const BoundAggregate& n) const {
        return n.operand ? std::vector<BoundPtr>{n.operand} : std::vector<BoundPtr>{};
    }
    template <class Leaf>
    std::vector<BoundPtr> operator()(const Leaf&) const {
        return {};
    }
};

/// What two nodes of one kind must share beside their operands.
struct SameHead {
    bool operator()(const BoundColumn& a, const BoundColumn& b) const {
        return a.table == b.table && a.column == b.column;
    }
    bool operator()(const BoundLiteral& a, const BoundLiteral& b) const {
        return a.literal.kind == b.literal.kind && a.literal.value == b.literal.value &&
               a.negated == b.negated && a.use == b.use && a.lifted == b.lifted && a.target == b.target;
    }
    bool operator()(const BoundArithmetic& a, const BoundArithmetic& b) const { return a.op == b.op; }
    bool operator()(const BoundConversion& a, const BoundConversion& b) const {
        return a.conversion == b.conversion;
    }
    bool operator()(const BoundCall& a, const BoundCall& b) const { return a.function == b.function; }
    bool operator()(const BoundLogic& a, const BoundLogic& b) const { return a.op == b.op; }
    bool operator()(const BoundComparison& a, const BoundComparison& b) const { return a.op == b.op; }
    bool operator()(const BoundIsNull& a, const BoundIsNull& b) const { return a.negated == b.negated; }
    bool operator()(const BoundLike& a, const BoundLike& b) const { return a.negated == b.negated; }
    bool operator()(const BoundAggregate& a, const BoundAggregate& b) const { return a.op == b.op; }
    template <class Same>
    bool operator()(const Same&, const Same&) const {
        return true;
    }
    template <class A, class B>
    bool operator()(const A&, const B&) const {
        return false;
    }
};

}  // namespace

BoundPtr MakeBound(BoundNode node, Kind kind, const BoundExpression* from) {
    auto made = std::make_shared<BoundExpression>();
    made->node = std::move(node);
    made->kind = kind;
    made->type = TypeOf(kind);
    if (from) {
        made->text = from->text;
        made->position = from->position;
    }
    return made;
}

BoundPtr MakeWhole(std::int64_t value) {
    return MakeBound(BoundLiteral{Literal{Literal::Kind::Integer, value}}, Kind::Integer);
}

std::vector<BoundPtr> OperandsOf(const BoundExpression& expression) {
    return std::visit(Operands(), expression.node);
}

bool SameExpression(const BoundExpression& a, const BoundExpression& b) {
    if (&a == &b) return true;
    if (a.node.index() != b.node.index() || !std::visit(SameHead(), a.node, b.node)) return false;
    const auto left = OperandsOf(a);
    const auto right = OperandsOf(b);
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i)
        if (!SameExpression(*left[i], *right[i])) return false;
    return true;
}

}  // namespace akarix
