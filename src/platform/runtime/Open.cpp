#include "platform/runtime/Open.h"

#include "platform/runtime/FileTable.h"

namespace akarix {

void Open(const QString& path, OpenMode mode, int number) {
    FileTable::instance().open(path, mode, number);
}

void Close(int number) {
    FileTable::instance().close(number);
}

void CloseAll() {
    FileTable::instance().closeAll();
}

int FreeFile() {
    return FileTable::instance().lowestFree();
}

bool AtEnd(int number) {
    const OpenFile& file = FileTable::instance().forInput(number);
    return file.at >= file.input.size();
}

}  // namespace akarix
