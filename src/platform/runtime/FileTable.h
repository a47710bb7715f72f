#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <optional>

#include "platform/runtime/ByteFile.h"
#include "platform/runtime/Files.h"

namespace akarix {

/// One open file number. An Input file is read whole at Open: the files are small, and a disk that is pulled
/// out fails there, not in the middle of an action.
struct OpenFile {
    OpenMode mode;
    QString location;  ///< canonical, to know the file again under another spelling
    QByteArray input;
    qsizetype at = 0;
    std::optional<ByteFile> output;
};

/// The file numbers of the process; like the program itself, of one thread.
class FileTable {
 public:
    static FileTable& instance();

    void open(const QString& path, OpenMode mode, int number);
    void close(int number);
    int lowestFree() const;

    /// Raise 52 for a number that is not open, 54 for one open the other way.
    OpenFile& forInput(int number);
    ByteFile& forOutput(int number);

 private:
    OpenFile& at(int number);

    std::map<int, OpenFile> files_;
};

}  // namespace akarix
