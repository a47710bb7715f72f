#include "platform/runtime/Files.h"

#include <algorithm>

#include "platform/runtime/FileTable.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Text.h"

namespace akarix {

namespace {

// All marks are single bytes that never are the second half of a character.
bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

class Reader {
 public:
    explicit Reader(int number) : file_(FileTable::instance().forInput(number)) {
        if (atEnd()) throw RuntimeError(62);
    }

    bool atEnd() const { return file_.at >= file_.input.size(); }
    char next() const { return file_.input[file_.at]; }
    void step() { ++file_.at; }

    template <class Stop>
    QByteArray takeUntil(Stop stop) {
        const auto from = file_.input.cbegin() + file_.at;
        const auto to = std::find_if(from, file_.input.cend(), stop);
        file_.at += to - from;
        return {from, to - from};
    }
    void skipBlanks() {
        while (!atEnd() && (next() == ' ' || next() == '\t'))
            step();
    }
    /// CR LF, a lone CR and a lone LF each end one line.
    void skipLineEnd() {
        if (atEnd() || !IsLineEnd(next())) return;
        const bool carriageReturn = next() == '\r';
        step();
        if (carriageReturn && !atEnd() && next() == '\n') step();
    }

 private:
    OpenFile& file_;
};

}  // namespace

QString Input(int number) {
    Reader reader(number);
    reader.skipBlanks();
    QByteArray item;
    const auto endsItem = [](char c) { return c == ',' || IsLineEnd(c); };
    if (!reader.atEnd() && reader.next() == '"') {
        reader.step();
        item = reader.takeUntil([](char c) { return c == '"'; });
        if (!reader.atEnd()) reader.step();
        reader.takeUntil(endsItem);
    } else {
        item = reader.takeUntil(endsItem);
    }
    if (!reader.atEnd() && reader.next() == ',')
        reader.step();
    else
        reader.skipLineEnd();
    return FromCodePage932(item);
}

}  // namespace akarix
