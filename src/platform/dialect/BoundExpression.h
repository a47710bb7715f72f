#pragma once

#include <memory>

#include "platform/dialect/Literal.h"
#include "platform/dialect/Operator.h"

namespace akarix {

// The tree with every name resolved and every operand brought to the kind its operator works in.

struct BoundExpression;
using BoundPtr = std::shared_ptr<const BoundExpression>;

/// A table of FROM.
struct BoundTable {
    int id = 0;  ///< its number in the statement
    TablePtr definition;
};

struct BoundColumn {
    const BoundTable* table;
    int column;

    const ColumnDef& definition() const { return table->definition->at(column); }
    friend bool operator==(const BoundColumn&, const BoundColumn&) = default;
};

struct BoundLiteral {
    Literal literal;
    LiteralPlace place;

    friend bool operator==(const BoundLiteral&, const BoundLiteral&) = default;
};

struct BoundNull {
    friend bool operator==(const BoundNull&, const BoundNull&) = default;
};

/// A number in another form, Real or Scaled.
struct BoundConversion {
    Form form;

    friend bool operator==(const BoundConversion&, const BoundConversion&) = default;
};

/// A computed value on its way into a column (FittedTo).
struct BoundFit {
    const ColumnDef* column;

    friend bool operator==(const BoundFit&, const BoundFit&) = default;
};

enum class Aggregate { Count, Sum, Max, First };

struct BoundExpression {
    std::variant<BoundColumn, BoundLiteral, BoundNull, Operator, BoundConversion, BoundFit, Aggregate> node;
    std::vector<BoundPtr> operands;  ///< none of an aggregate: Count(*)
    Kind kind = Kind::Null;
    FieldType type = FieldType::Text;  ///< the column type a result of it has
    int size = 0;
    QString text;            ///< as the statement has it, for messages
    qsizetype position = 0;  ///< in the statement

    template <class Node>
    const Node* as() const {
        return std::get_if<Node>(&node);
    }
};

/// With the text and the place of the first operand, if there is one.
BoundPtr MakeBound(decltype(BoundExpression::node) node, Kind kind, std::vector<BoundPtr> operands = {});
BoundPtr MakeColumn(const BoundTable* table, int column);

bool SameExpression(const BoundExpression& a, const BoundExpression& b);
bool HasAggregate(const BoundExpression& expression);

}  // namespace akarix
