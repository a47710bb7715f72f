#include <algorithm>
#include <utility>

#include "platform/cipher/Sqlite.h"
#include "platform/cipher/Writer.h"

// The order of rows. What ORDER BY asks for comes first; texts go by the Japanese order, then by code points.
// Ties and queries without ORDER BY: a grouped query goes by its groups, all others by the tables' natural
// order: the key where a table has one and nothing was asked for, else the row numbers, which are the order
// of insertion.

namespace akarix {
namespace {

bool IsConstant(const BoundExpression& expression) {
    return expression.as<BoundLiteral>() || expression.as<BoundNull>();
}

QByteArray Numbered(char letter, std::size_t number) {
    return letter + QByteArray::number(static_cast<qulonglong>(number));
}

}  // namespace

Written Write(const BoundStatement& statement) {
    Writer writer(statement.places);
    std::visit(writer, statement.body);
    return std::move(writer).written();
}

void Writer::operator()(const BoundQuery& query) {
    rowNumber_ = query.updatable();
    select(query);
}

void Writer::select(const BoundQuery& query) {
    aggregated_ = &query.rows;
    if (query.top) {
        topSelect(query);
    } else {
        body(query, nullptr);
        orderBy(orderOf(query).terms);
    }
}

/// \param keys what a query around it orders by: they come as k0, k1 ... behind the items, named c0, c1 ...
void Writer::body(const BoundQuery& query, const Order* keys) {
    out_.text += "SELECT ";
    for (std::size_t i = 0; i < query.items.size(); ++i) {
        if (i > 0) out_.text += ',';
        value(*query.items[i]);
        if (keys) out_.text += " AS " + Numbered('c', i);
    }
    if (rowNumber_) out_.text += ',' + nameOf(*query.rows.tables.front()) + "._rowid_ AS r";
    if (keys)
        for (std::size_t i = 0; i < keys->terms.size(); ++i)
            out_.text += ',' + keys->terms[i].text + " AS " + Numbered('k', i);
    rows(query.rows);
    groupBy(query);
}

void Writer::rows(const BoundRows& rows) {
    for (std::size_t i = 0; i < rows.tables.size(); ++i) {
        const BoundTable& table = *rows.tables[i];
        out_.text += i == 0 ? " FROM " : rows.joins[i - 1].outer ? " LEFT JOIN " : " INNER JOIN ";
        out_.text += Quoted(table.definition->name) + " AS " + nameOf(table);
        if (i == 0) continue;
        out_.text += " ON ";
        condition(*rows.joins[i - 1].on);
    }
    if (rows.where) {
        out_.text += " WHERE (";
        condition(*rows.where);
        out_.text += ')';
    }
}

void Writer::groupBy(const BoundQuery& query) {
    QByteArray groups;
    for (const BoundPtr& group : query.groups) {
        if (IsConstant(*group)) continue;
        groups += (groups.isEmpty() ? "" : ",") + valueText(*group);
        if (group->kind == Kind::Text) groups += " COLLATE AKARIX_TEXT";
    }
    if (!groups.isEmpty()) out_.text += " GROUP BY " + groups;
}

void Writer::orderBy(const std::vector<OrderTerm>& terms) {
    for (std::size_t i = 0; i < terms.size(); ++i) {
        out_.text += i == 0 ? " ORDER BY " : ",";
        out_.text += terms[i].text;
        if (*terms[i].collation) out_.text += QByteArray(" COLLATE ") + terms[i].collation;
        if (terms[i].descending) out_.text += " DESC";
    }
}

Writer::Order Writer::orderOf(const BoundQuery& query) {
    Order order;
    for (const BoundOrder& term : query.order)
        if (!IsConstant(*term.expression)) addTerm(order.terms, *term.expression, term.descending);
    order.asked = order.terms.size();
    if (query.grouped) {
        for (const BoundPtr& group : query.groups)
            if (!IsConstant(*group)) addTerm(order.terms, *group, false);
    } else {
        const std::vector<OrderTerm> ties = naturalOrder(query.rows, order.asked == 0);
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

/// \param byKey by the key of a table that has one, else by the numbers of its rows.
std::vector<Writer::OrderTerm> Writer::naturalOrder(const BoundRows& rows, bool byKey) {
    std::vector<OrderTerm> terms;
    for (const auto& table : rows.tables) {
        if (byKey && !table->definition->uniqueKeys.empty())
            for (const QString& column : table->definition->uniqueKeys.front())
                terms.push_back({columnText(*table, table->definition->indexOf(column)), "", false});
        else
            terms.push_back({nameOf(*table) + "._rowid_", "", false});
    }
    return terms;
}

/// TOP keeps every row that is equal to the last one in what ORDER BY asks for. The rows (named b) are held
/// against the last of the counted ones (named x).
void Writer::topSelect(const BoundQuery& query) {
    const QByteArray limit = " LIMIT " + QByteArray::number(static_cast<qlonglong>(*query.top));
    const Order order = orderOf(query);
    if (order.asked == 0) {
        body(query, nullptr);
        orderBy(order.terms);
        out_.text += limit;
        return;
    }
    std::vector<OrderTerm> keys;
    std::vector<OrderTerm> backwards;
    std::vector<OrderTerm> all;
    for (std::size_t i = 0; i < order.terms.size(); ++i) {
        OrderTerm term = order.terms[i];
        term.text = Numbered('k', i);
        if (i < order.asked) {
            keys.push_back(term);
            backwards.push_back({term.text, term.collation, !term.descending});
        }
        term.text.prepend("b.");
        all.push_back(term);
    }
    out_.text += "SELECT ";
    for (std::size_t i = 0; i < query.items.size(); ++i) {
        const QByteArray name = Numbered('c', i);
        out_.text += (i == 0 ? "b." : ",b.") + name;
    }
    if (rowNumber_) out_.text += ",b.r";
    out_.text += " FROM (SELECT * FROM (SELECT * FROM (";
    body(query, &order);
    out_.text += ')';
    orderBy(keys);
    out_.text += limit;
    out_.text += ')';
    orderBy(backwards);
    out_.text += " LIMIT 1) AS x CROSS JOIN (";
    body(query, &order);
    out_.text += ") AS b WHERE ";
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const QByteArray own = "b." + keys[i].text;
        const QByteArray last = "x." + keys[i].text;
        const QByteArray collation =
            *keys[i].collation ? QByteArray(" COLLATE ") + keys[i].collation : QByteArray();
        const bool down = keys[i].descending;
        // Nulls stand before everything else.
        out_.text += '(' + own + (down ? '>' : '<') + last + collation + " OR " + own +
                     (down ? " IS NOT NULL" : " IS NULL") + " AND " + last +
                     (down ? " IS NULL" : " IS NOT NULL") + " OR " + own + " IS " + last + collation;
        if (i + 1 < keys.size()) out_.text += " AND ";
    }
    out_.text += QByteArray(static_cast<qsizetype>(keys.size()), ')');
    orderBy(all);
}

}  // namespace akarix
