#include <algorithm>
#include <set>

#include "platform/jet/DialectError.h"
#include "platform/jet/Writer.h"

// The order of rows. What ORDER BY asks for comes first; texts go by the Japanese order, then by code points.
// Ties and queries without ORDER BY: a grouped query goes by its groups, DISTINCT by its columns, all others
// by the tables' natural order: the key where a table has one and nothing was asked for, else the row
// numbers, which are the order of insertion.

namespace akarix {
namespace {

constexpr int kMostTops = 4;

bool isConstant(const BoundExpression& expression) {
    return std::holds_alternative<BoundLiteral>(expression.node) ||
           std::holds_alternative<BoundNull>(expression.node) ||
           std::holds_alternative<BoundBoolean>(expression.node);
}

void collectTables(const BoundExpression& expression, std::set<const BoundTable*>& tables) {
    if (const auto* column = std::get_if<BoundColumn>(&expression.node)) tables.insert(column->table);
    for (const BoundPtr& operand : operandsOf(expression))
        collectTables(*operand, tables);
}

/// The tables that DISTINCTROW counts rows of: those that give columns, unless all do.
std::vector<const BoundTable*> contributing(const BoundSelect& select) {
    std::set<const BoundTable*> tables;
    for (const BoundItem& item : select.items)
        collectTables(*item.expression, tables);
    std::vector<const BoundTable*> some;
    for (const auto& table : select.rows.tables) {
        if (tables.count(table.get()) != 0 && table->rowNumberReachable) some.push_back(table.get());
    }
    return some.size() < select.rows.tables.size() ? some : std::vector<const BoundTable*>();
}

QByteArray numbered(char letter, std::size_t number) {
    return letter + QByteArray::number(static_cast<qulonglong>(number));
}

}  // namespace

void Writer::query(const BoundQuery& query, bool rowNumber) {
    Shape shape;
    shape.rowNumber = rowNumber;
    anyQuery(query, shape);
}

void Writer::anyQuery(const BoundQuery& query, const Shape& shape) {
    if (query.members.size() > 1) {
        unionQuery(query);
    } else {
        select(query.members.front(), shape);
    }
}

void Writer::unionQuery(const BoundQuery& query) {
    const bool distinct = std::find(query.all.begin(), query.all.end(), false) != query.all.end();
    const std::size_t columns = query.members.front().items.size();
    out_ += "SELECT * FROM (";
    for (std::size_t i = 0; i < query.members.size(); ++i) {
        if (i > 0) out_ += query.all[i - 1] ? " UNION ALL " : " UNION ";
        Shape shape;
        shape.aliased = true;
        shape.foldTexts = distinct;
        out_ += "SELECT * FROM (";
        select(query.members[i], shape);
        out_ += ')';
    }
    out_ += ')';
    std::vector<OrderTerm> terms;
    const auto add = [&](std::size_t item, bool descending) {
        const QByteArray name = numbered('c', item);
        if (query.members.front().items[item].expression->kind == Kind::Text) {
            terms.push_back({name, "AKARIX_ORDER", descending});
            terms.push_back({name, "BINARY", descending});
        } else {
            terms.push_back({name, "", descending});
        }
    };
    for (const BoundUnionOrder& term : query.order)
        add(term.item, term.descending);
    if (distinct || !query.order.empty()) {
        for (std::size_t i = 0; i < columns; ++i)
            add(i, false);
    }
    orderBy(terms);
}

void Writer::select(const BoundSelect& select, const Shape& shape) {
    const BoundRows* const around = std::exchange(aggregated_, &select.rows);
    if (select.top) {
        topSelect(select, shape);
    } else {
        body(select, shape, nullptr);
        if (shape.ordered) orderBy(orderOf(select).terms);
    }
    aggregated_ = around;
}

void Writer::body(const BoundSelect& select, const Shape& shape, const Order* keys) {
    out_ += select.distinct ? "SELECT DISTINCT " : "SELECT ";
    items(select, shape);
    if (shape.rowNumber) out_ += ',' + nameOf(*select.rows.tables.front()) + "._rowid_ AS r";
    if (keys) {
        for (std::size_t i = 0; i < keys->terms.size(); ++i)
            out_ += ',' + keys->terms[i].text + " AS " + numbered('k', i);
    }
    rows(select.rows);
    groupBy(select);
}

void Writer::items(const BoundSelect& select, const Shape& shape) {
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        if (i > 0) out_ += ',';
        const BoundExpression& expression = *select.items[i].expression;
        value(expression);
        if ((select.distinct || shape.foldTexts) && expression.kind == Kind::Text)
            out_ += " COLLATE AKARIX_TEXT";
        if (shape.aliased) out_ += " AS " + numbered('c', i);
    }
}

void Writer::rows(const BoundRows& rows) {
    for (std::size_t i = 0; i < rows.sources.size(); ++i) {
        out_ += i == 0 ? " FROM " : ",";
        source(rows.sources[i]);
    }
    if (rows.where) {
        out_ += " WHERE (";
        condition(*rows.where);
        out_ += ')';
    }
}

void Writer::source(const BoundSource& source) {
    if (const auto* table = std::get_if<const BoundTable*>(&source.node)) {
        if ((*table)->derived) {
            Shape shape;
            shape.aliased = true;
            shape.ordered = false;
            out_ += '(';
            anyQuery(*(*table)->derived, shape);
            out_ += ')';
        } else {
            out_ += Quoted((*table)->definition->name);
        }
        out_ += " AS " + nameOf(**table);
        return;
    }
    const auto& join = std::get<BoundJoin>(source.node);
    this->source(*join.left);
    out_ += join.outer ? " LEFT JOIN " : " INNER JOIN ";
    const bool enclosed = std::holds_alternative<BoundJoin>(join.right->node);
    if (enclosed) out_ += '(';
    this->source(*join.right);
    if (enclosed) out_ += ')';
    out_ += " ON ";
    condition(*join.on);
}

void Writer::groupBy(const BoundSelect& select) {
    QByteArray groups;
    for (const BoundPtr& group : select.groups) {
        if (isConstant(*group)) continue;
        groups += (groups.isEmpty() ? "" : ",") + valueText(*group);
        if (group->kind == Kind::Text) groups += " COLLATE AKARIX_TEXT";
    }
    if (select.distinctRow && !select.grouped) {
        for (const BoundTable* table : contributing(select)) {
            groups += (groups.isEmpty() ? "" : ",") + nameOf(*table) + "._rowid_";
        }
    }
    if (!groups.isEmpty()) out_ += " GROUP BY " + groups;
    if (select.having) {
        // The engine wants groups for HAVING; one over everything is the same as none.
        if (groups.isEmpty()) out_ += " GROUP BY NULL";
        out_ += " HAVING ";
        condition(*select.having);
    }
}

void Writer::orderBy(const std::vector<OrderTerm>& terms) {
    for (std::size_t i = 0; i < terms.size(); ++i) {
        out_ += i == 0 ? " ORDER BY " : ",";
        out_ += terms[i].text;
        if (*terms[i].collation) out_ += QByteArray(" COLLATE ") + terms[i].collation;
        if (terms[i].descending) out_ += " DESC";
    }
}

Writer::Order Writer::orderOf(const BoundSelect& select) {
    Order order;
    for (const BoundOrder& term : select.order) {
        if (!isConstant(*term.expression)) addTerm(order.terms, *term.expression, term.descending);
    }
    order.asked = order.terms.size();
    if (select.grouped) {
        for (const BoundPtr& group : select.groups) {
            if (!isConstant(*group)) addTerm(order.terms, *group, false);
        }
    } else if (select.distinct) {
        for (const BoundItem& item : select.items) {
            if (!isConstant(*item.expression)) addTerm(order.terms, *item.expression, false);
        }
    } else {
        const std::vector<OrderTerm> ties =
            order.asked > 0 ? rowNumbers(select.rows) : naturalOrder(select.rows);
        order.terms.insert(order.terms.end(), ties.begin(), ties.end());
    }
    return order;
}

void Writer::addTerm(std::vector<OrderTerm>& terms, const BoundExpression& expression, bool descending) {
    const QByteArray text = valueText(expression);
    const auto known = [&](const OrderTerm& term) { return term.text == text; };
    if (std::any_of(terms.begin(), terms.end(), known)) return;
    if (expression.kind == Kind::Text) {
        terms.push_back({text, "AKARIX_ORDER", descending});
        terms.push_back({text, "BINARY", descending});
    } else {
        terms.push_back({text, "", descending});
    }
}

std::vector<Writer::OrderTerm> Writer::naturalOrder(const BoundRows& rows) {
    std::vector<OrderTerm> terms;
    for (const auto& table : rows.tables) {
        if (table->derived) continue;
        if (!table->definition->uniqueKeys.empty()) {
            for (const QString& column : table->definition->uniqueKeys.front()) {
                terms.push_back({columnText(*table, table->definition->indexOf(column)), "", false});
            }
        } else if (table->rowNumberReachable) {
            terms.push_back({nameOf(*table) + "._rowid_", "", false});
        }
    }
    return terms;
}

std::vector<Writer::OrderTerm> Writer::rowNumbers(const BoundRows& rows) {
    std::vector<OrderTerm> terms;
    for (const auto& table : rows.tables) {
        if (table->rowNumberReachable) terms.push_back({nameOf(*table) + "._rowid_", "", false});
    }
    return terms;
}

void Writer::topLimit(const BoundSelect& select, const Shape& shape) {
    out_ += " LIMIT ";
    const QByteArray count = QByteArray::number(static_cast<qlonglong>(select.top->count));
    if (!select.top->percent) {
        out_ += count;
        return;
    }
    out_ += "((SELECT COUNT(*) FROM (";
    body(select, shape, nullptr);
    out_ += "))*" + count + "+99)/100";
}

void Writer::topSelect(const BoundSelect& select, const Shape& shape) {
    // Each level writes what is inside it two or three times.
    if (++tops_ > kMostTops) throw tooComplex();
    writeTop(select, shape);
    --tops_;
}

/// TOP keeps every row that is equal to the last one in what ORDER BY asks for. The rows (named b) are held
/// against the last of the counted ones (named x).
void Writer::writeTop(const BoundSelect& select, const Shape& shape) {
    const Order order = orderOf(select);
    Shape inner = shape;
    inner.aliased = true;
    if (order.asked == 0) {
        body(select, shape, nullptr);
        orderBy(order.terms);
        topLimit(select, inner);
        return;
    }
    std::vector<OrderTerm> keys;
    std::vector<OrderTerm> backwards;
    std::vector<OrderTerm> all;
    for (std::size_t i = 0; i < order.terms.size(); ++i) {
        OrderTerm term = order.terms[i];
        term.text = numbered('k', i);
        if (i < order.asked) {
            keys.push_back(term);
            backwards.push_back({term.text, term.collation, !term.descending});
        }
        term.text.prepend("b.");
        all.push_back(term);
    }
    out_ += "SELECT ";
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const QByteArray name = numbered('c', i);
        out_ += (i == 0 ? "b." : ",b.") + name + (shape.aliased ? " AS " + name : QByteArray());
    }
    if (shape.rowNumber) out_ += ",b.r";
    out_ += " FROM (SELECT * FROM (SELECT * FROM (";
    body(select, inner, &order);
    out_ += ')';
    orderBy(keys);
    topLimit(select, inner);
    out_ += ')';
    orderBy(backwards);
    out_ += " LIMIT 1) AS x CROSS JOIN (";
    body(select, inner, &order);
    out_ += ") AS b WHERE ";
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const QByteArray own = "b." + keys[i].text;
        const QByteArray last = "x." + keys[i].text;
        const QByteArray collation =
            *keys[i].collation ? QByteArray(" COLLATE ") + keys[i].collation : QByteArray();
        const bool down = keys[i].descending;
        // Nulls stand before everything else.
        out_ += '(' + own + (down ? '>' : '<') + last + collation + " OR " + own +
                (down ? " IS NOT NULL" : " IS NULL") + " AND " + last + (down ? " IS NULL" : " IS NOT NULL") +
                " OR " + own + " IS " + last + collation;
        if (i + 1 < keys.size()) out_ += " AND ";
    }
    out_ += QByteArray(static_cast<qsizetype>(keys.size()), ')');
    if (shape.ordered) orderBy(all);
}

}  // namespace akarix
