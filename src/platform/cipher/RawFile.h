#pragma once

#include <QByteArray>
#include <QString>

#include "platform/cipher/Sqlite.h"

namespace akarix {

/// The bytes of a store file as they stand on the disk, read through the engine's own handle: a descriptor
/// of our own, when closed, would drop the engine's locks on the file in this process.
class RawFile {
 public:
    /// Of an open connection.
    explicit RawFile(sqlite3* connection);
    /// Of a file nobody has a key for yet.
    explicit RawFile(const QString& path);
    ~RawFile();
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;

    /// Keeps every other connection out; false when one holds the file.
    bool lock();
    /// Keeps writers out while the file is read; false when one does not come to its end within seconds.
    bool lockShared();

    qint64 size() const;
    /// Pages begun; the last may be cut.
    int pageCount() const;
    /// \param number from 1. Shorter than a page where the file ends; empty when it cannot be read.
    QByteArray page(int number) const;

 private:
    Connection own_;
    sqlite3_file* file_ = nullptr;
    bool locked_ = false;
};

}  // namespace akarix
