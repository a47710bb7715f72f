#include <algorithm>

#include "platform/cipher/Sqlite.h"
#include "platform/cipher/Writer.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr char kFold[] = " COLLATE AKARIX_TEXT";

const char* SymbolOf(Operator op) {
    switch (op) {
        case Operator::Or:
            return " OR ";
        case Operator::And:
            return " AND ";
        case Operator::Equal:
            return "=";
        case Operator::NotEqual:
            return "<>";
        case Operator::Less:
            return "<";
        case Operator::LessEqual:
            return "<=";
        case Operator::Greater:
            return ">";
        case Operator::GreaterEqual:
            return ">=";
        case Operator::Add:
            return "+";
        case Operator::Subtract:
            return "-";
        default:
            return "*";
    }
}

const char* NameOf(Aggregate which) {
    switch (which) {
        case Aggregate::Count:
            return "COUNT";
        case Aggregate::Sum:
            return "SUM";
        case Aggregate::Max:
            return "MAX";
        case Aggregate::First:
            return "akarix_first";
    }
    return "COUNT";
}

/// The function that an operator needs where the engine's own would not do.
const char* FunctionOf(Operator op, const BoundExpression& expression) {
    if (op == Operator::Divide) return "akarix_divide";
    const auto isMoney = [](const BoundPtr& operand) { return operand->kind == Kind::Currency; };
    const bool money = std::all_of(expression.operands.begin(), expression.operands.end(), isMoney);
    return op == Operator::Multiply && money ? "akarix_mul_currency" : nullptr;
}

bool IsProduct(Operator op) {
    return op == Operator::Multiply;
}

}  // namespace

/// Truth values of the engine are 1 and 0, unlike those of the dialect, -1 and 0.
void Writer::value(const BoundExpression& expression) {
    if (const auto* column = expression.as<BoundColumn>())
        out_.text += columnText(*column->table, column->column);
    else if (const auto* given = expression.as<BoundLiteral>())
        literal(*given);
    else if (const auto* op = expression.as<Operator>())
        operation(*op, expression);
    else if (const auto* converted = expression.as<BoundConversion>())
        conversion(converted->form, *expression.operands.front());
    else if (const auto* fitted = expression.as<BoundFit>())
        fit(*fitted->column, *expression.operands.front());
    else if (const auto* which = expression.as<Aggregate>())
        aggregate(*which, expression);
    else
        out_.text += "NULL";
}

void Writer::condition(const BoundExpression& expression) {
    const auto* op = expression.as<Operator>();
    if (op && IsTest(*op)) {
        test(*op, expression.operands);
    } else {
        value(expression);
        out_.text += "<>0";
    }
}

QByteArray Writer::valueText(const BoundExpression& expression) {
    QByteArray text;
    out_.text.swap(text);
    value(expression);
    out_.text.swap(text);
    return text;
}

void Writer::literal(const BoundLiteral& literal) {
    if (literal.place.number < 0) {
        constant(ValueAt(literal.place, literal.literal));
        return;
    }
    const auto place = std::find(places_.begin(), places_.end(), literal.place);
    out_.text += '?' + QByteArray::number(place - places_.begin() + 1);
}

void Writer::constant(const StoreValue& constant) {
    if (const auto* whole = std::get_if<std::int64_t>(&constant))
        out_.text += '(' + QByteArray::number(static_cast<qlonglong>(*whole)) + ')';
    else if (const auto* real = std::get_if<double>(&constant))
        out_.text += '(' + QByteArray::number(*real, 'e', 17) + ')';
    else if (const auto* text = std::get_if<QString>(&constant))
        out_.text += '\'' + QString(*text).replace(u'\'', u"''"_s).toUtf8() + '\'';
    else
        out_.text += "NULL";
}

void Writer::operation(Operator op, const BoundExpression& expression) {
    if (IsTest(op)) {
        out_.text += "(-(";
        test(op, expression.operands);
        out_.text += "))";
    } else if (op == Operator::Negate) {
        out_.text += "(-";
        value(*expression.operands.front());
        out_.text += ')';
    } else if (const char* function = FunctionOf(op, expression)) {
        call(function, expression.operands);
    } else {
        out_.text += '(';
        arithmetic(op, expression);
        out_.text += ')';
    }
}

void Writer::arithmetic(Operator op, const BoundExpression& expression) {
    // A chain is written without parentheses, of which the engine takes a limited depth.
    const BoundExpression& left = *expression.operands[0];
    const auto* inner = left.as<Operator>();
    const bool chain = inner && *inner >= Operator::Add && *inner <= Operator::Multiply &&
                       IsProduct(*inner) == IsProduct(op) && !FunctionOf(*inner, left);
    if (chain)
        arithmetic(*inner, left);
    else
        value(left);
    out_.text += SymbolOf(op);
    value(*expression.operands[1]);
}

void Writer::test(Operator op, const std::vector<BoundPtr>& operands) {
    const auto bracketed = [this](const BoundExpression& expression) {
        out_.text += '(';
        condition(expression);
        out_.text += ')';
    };
    switch (op) {
        case Operator::Not:
            out_.text += "NOT ";
            bracketed(*operands[0]);
            return;
        case Operator::Or:
        case Operator::And: {
            const auto* inner = operands[0]->as<Operator>();
            if (inner && *inner == op)
                condition(*operands[0]);
            else
                bracketed(*operands[0]);
            out_.text += SymbolOf(op);
            bracketed(*operands[1]);
            return;
        }
        case Operator::IsNull:
            value(*operands[0]);
            out_.text += " IS NULL";
            return;
        case Operator::Like:
            call("akarix_like", {operands[1], operands[0]});
            return;
        default:
            break;
    }
    value(*operands[0]);
    out_.text += SymbolOf(op);
    value(*operands[1]);
    if (operands[0]->kind == Kind::Text || operands[1]->kind == Kind::Text) out_.text += kFold;
}

void Writer::conversion(Form form, const BoundExpression& operand) {
    const bool real = operand.kind == Kind::Double || operand.kind == Kind::Date;
    const bool cast = form == Form::Real && operand.kind != Kind::Currency;
    out_.text += cast ? "CAST(" : "(";
    value(operand);
    if (form == Form::Scaled)
        out_.text += real ? "*10000.0)" : "*10000)";
    else
        out_.text += cast ? " AS REAL)" : "/10000.0)";
}

void Writer::fit(const ColumnDef& column, const BoundExpression& operand) {
    out_.computes = true;
    out_.text += "akarix_fit(";
    value(operand);
    for (const int part : {static_cast<int>(operand.kind), static_cast<int>(column.type), column.size,
                           column.required ? 1 : 0})
        out_.text += ',' + QByteArray::number(part);
    out_.text += ')';
}

void Writer::call(const char* function, const std::vector<BoundPtr>& arguments) {
    out_.computes = true;
    out_.text += function;
    char before = '(';
    for (const BoundPtr& argument : arguments) {
        out_.text += std::exchange(before, ',');
        value(*argument);
    }
    out_.text += ')';
}

void Writer::aggregate(Aggregate which, const BoundExpression& expression) {
    out_.computes = true;
    out_.text += akarix::NameOf(which);
    out_.text += '(';
    if (expression.operands.empty()) {
        out_.text += '*';
    } else {
        const BoundExpression& operand = *expression.operands.front();
        value(operand);
        if (which == Aggregate::Max && operand.kind == Kind::Text) out_.text += kFold;
        if (which == Aggregate::First) {
            // The engine feeds groups in no settled order: the row's place comes along.
            for (const OrderTerm& term : naturalOrder(*aggregated_))
                out_.text += ',' + term.text;
        }
    }
    out_.text += ')';
}

QByteArray Writer::nameOf(const BoundTable& table) const {
    if (&table == itself_) return Quoted(table.definition->name);
    return 't' + QByteArray::number(table.id);
}

QByteArray Writer::columnText(const BoundTable& table, int column) const {
    return nameOf(table) + '.' + Quoted(table.definition->at(column).name);
}

}  // namespace akarix
