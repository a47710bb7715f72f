#include "platform/runtime/Print.h"

#include "platform/runtime/CodePage932.h"
#include "platform/runtime/FileTable.h"

namespace akarix {

void Print(int number, const QString& text, bool lineEnd) {
    ByteFile& file = FileTable::instance().forOutput(number);
    QByteArray bytes = ToCodePage932(text);
    if (lineEnd) bytes += "\r\n";
    file.write(bytes);
}

}  // namespace akarix
