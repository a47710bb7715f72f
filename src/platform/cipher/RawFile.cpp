#include "platform/cipher/RawFile.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/cipher/StoreKey.h"
#include "platform/dialect/StoreError.h"

namespace akarix {
namespace {

// Lock levels of the engine's file interface.
constexpr int kUnlocked = 0;
constexpr int kShared = 1;
constexpr int kReserved = 2;
constexpr int kExclusive = 4;

sqlite3_file* FileOf(sqlite3* connection) {
    sqlite3_file* file = nullptr;
    if (sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || !file ||
        !file->pMethods)
        throw StoreError(3051);
    return file;
}

Connection OpenWithoutKey(const QString& path) {
    sqlite3* connection = nullptr;
    const int result =
        sqlite3_open_v2(path.toUtf8().constData(), &connection, SQLITE_OPEN_READWRITE, nullptr);
    Connection owned(connection);
    if (result != SQLITE_OK) throw StoreError(3051, path);
    return owned;
}

}  // namespace

RawFile::RawFile(sqlite3* connection) : file_(FileOf(connection)) {}

RawFile::RawFile(const QString& path) : own_(OpenWithoutKey(path)), file_(FileOf(own_.get())) {}

RawFile::~RawFile() {
    if (locked_) file_->pMethods->xUnlock(file_, kUnlocked);
}

bool RawFile::lock() {
    locked_ = true;
    for (const int level : {kShared, kReserved, kExclusive})
        if (file_->pMethods->xLock(file_, level) != SQLITE_OK) return false;
    return true;
}

bool RawFile::lockShared() {
    constexpr int mostTries = 1500;
    locked_ = true;
    for (int i = 0; i < mostTries; ++i) {
        if (file_->pMethods->xLock(file_, kShared) == SQLITE_OK) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return false;
}

qint64 RawFile::size() const {
    sqlite3_int64 bytes = 0;
    return file_->pMethods->xFileSize(file_, &bytes) == SQLITE_OK ? bytes : 0;
}

int RawFile::pageCount() const {
    return static_cast<int>((size() + kPageSize - 1) / kPageSize);
}

QByteArray RawFile::page(int number) const {
    const qint64 offset = qint64{number - 1} * kPageSize;
    const auto length = static_cast<int>(std::clamp<qint64>(size() - offset, 0, kPageSize));
    QByteArray bytes(length, '\0');
    if (length == 0 || file_->pMethods->xRead(file_, bytes.data(), length, offset) != SQLITE_OK) return {};
    return bytes;
}

}  // namespace akarix
