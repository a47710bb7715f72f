#include "platform/forms/LineEnds.h"

#include "platform/runtime/Literals.h"

namespace akarix {

QString ShownLines(QString text) {
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

}  // namespace akarix
