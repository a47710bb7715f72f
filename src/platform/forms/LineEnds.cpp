#include "platform/forms/LineEnds.h"

namespace akarix {

QString ShownLines(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

}  // namespace akarix
