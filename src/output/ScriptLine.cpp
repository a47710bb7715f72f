#include "output/ScriptLine.h"

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "values/NumVal.h"

namespace akarix {

ScriptLine::ScriptLine(const QString& line) {
    const qsizetype end = line.indexOf(u'>');
    if (end < 0) {
        tag = u"*"_s;
        argument = line;
        return;
    }
    if (end == 0) throw RuntimeError(5);
    tag = line.mid(1, end - 1);
    argument = line.mid(end + 1);
}

Int16 ScriptNumber(const QString& text) {
    return Int16::Rounded(NumVal(text));
}

Int16 ScriptArguments::number() {
    const qsizetype comma = rest_.indexOf(u',');
    if (comma < 0) throw RuntimeError(5);
    const Int16 value = ScriptNumber(rest_.left(comma));
    rest_.remove(0, comma + 1);
    return value;
}

}  // namespace akarix
