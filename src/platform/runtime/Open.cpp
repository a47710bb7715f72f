#include "platform/runtime/Open.h"

#include "platform/runtime/FileTable.h"

namespace akarix {

void Open(const QString& path, OpenMode mode, int number) {
    FileTable::instance().open(path, mode, number);
}

void Close(int number) {
    FileTable::instance().close(number);
}

int FreeFile() {
    return FileTable::instance().lowestFree();
}

}  // namespace akarix
