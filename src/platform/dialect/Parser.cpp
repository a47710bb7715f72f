#include "platform/dialect/Parser.h"

#include "platform/runtime/Literals.h"

namespace akarix {

ParsedStatement Parser::statement() {
    ParsedStatement read = [&]() -> ParsedStatement {
        if (in_.at(Keyword::Select)) return query();
        if (in_.at(Keyword::Insert)) return insert();
        if (in_.at(Keyword::Update)) return update();
        if (in_.at(Keyword::Delete)) return deletion();
        if (in_.acceptWord(u"CREATE")) return create();
        if (in_.acceptWord(u"ALTER")) return alter();
        in_.fail(u"SELECT、INSERT、UPDATE、DELETE などで始まっていません。"_s);
    }();
    finish();
    return read;
}

ParsedPtr Parser::condition() {
    ParsedPtr read = expression();
    finish();
    return read;
}

void Parser::finish() {
    while (in_.accept(u";")) {
    }
    if (!in_.atEnd()) in_.failHere();
}

}  // namespace akarix
