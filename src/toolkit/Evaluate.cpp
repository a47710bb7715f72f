#include "toolkit/Evaluate.h"

#include <muParser.h>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Text.h"

namespace akarix {

namespace {

QString LastLine(const QString& memo) {
    static const QString kBreak = u"\r\n"_s;
    const QString text = Trim(memo);
    const qsizetype at = text.lastIndexOf(kBreak);
    return at < 0 ? text : Trim(text.mid(at + kBreak.size()));
}

}  // namespace

Currency Evaluate(const QString& expression) {
    const QString line = LastLine(expression);
    if (line.isEmpty()) return {};
    try {
        mu::Parser parser;
        parser.SetExpr(line.toStdString());
        int results = 0;
        const double* values = parser.Eval(results);
        // A comma makes two results of "1,200*2"; that is no expression of the desk's.
        return results == 1 ? CCur(values[0]) : Currency();
    } catch (const mu::Parser::exception_type&) {
        return {};
    } catch (const RuntimeError&) {
        return {};
    }
}

}  // namespace akarix
