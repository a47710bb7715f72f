#include <algorithm>

#include "platform/dialect/Parser.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

/// SELECT without FROM gives one row of values, the same as VALUES.
bool IsValuesOnly(const ParsedQuery& query) {
    return !query.source && query.groups.empty() && query.order.empty() &&
           std::all_of(query.items.begin(), query.items.end(),
                       [](const ParsedItem& item) { return item.expression != nullptr; });
}

}  // namespace

ParsedStatement Parser::insert() {
    in_.take();
    in_.expect(Keyword::Into, u"INTO");
    ParsedInsert read;
    read.table = in_.takeName();
    if (in_.at(u"(")) read.columns = names();
    if (in_.accept(Keyword::Values)) {
        in_.expect(u"(");
        read.values = expressions();
        in_.expect(u")");
        return read;
    }
    if (!in_.at(Keyword::Select)) in_.fail(u"VALUES か SELECT がありません。"_s);
    read.query = query();
    if (IsValuesOnly(*read.query)) {
        for (ParsedItem& item : read.query->items)
            read.values.push_back(std::move(item.expression));
        read.query.reset();
    }
    return read;
}

ParsedStatement Parser::update() {
    in_.take();
    ParsedUpdate read;
    read.source = source();
    in_.expect(Keyword::Set, u"SET");
    do {
        ParsedAssignment assignment;
        assignment.position = in_.position();
        assignment.column = name();
        in_.expect(u"=");
        assignment.value = expression();
        read.assignments.push_back(std::move(assignment));
    } while (in_.accept(u","));
    if (in_.accept(Keyword::Where)) read.where = expression();
    return read;
}

ParsedStatement Parser::deletion() {
    in_.take();
    ParsedDelete read;
    if (in_.accept(u"*") && in_.accept(u".")) in_.expect(u"*");
    in_.expect(Keyword::From, u"FROM");
    read.table = in_.takeName();
    if (in_.accept(Keyword::Where)) read.where = expression();
    return read;
}

}  // namespace akarix
