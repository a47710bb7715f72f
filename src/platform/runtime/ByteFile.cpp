#include "platform/runtime/ByteFile.h"

#include <cerrno>

#include "platform/runtime/RuntimeError.h"

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>

#include <QFile>
#endif

namespace akarix {

namespace {

[[noreturn]] void raiseErrno() {
    throw RuntimeError(FileErrorNumber(errno));
}

std::FILE* OpenFile(const QString& path, ByteFile::Mode mode) {
#ifdef Q_OS_WIN
    const wchar_t* flags = mode == ByteFile::Mode::Read    ? L"rb"
                           : mode == ByteFile::Mode::Write ? L"wb"
                                                           : L"ab";
    return _wfopen(reinterpret_cast<const wchar_t*>(path.utf16()), flags);
#else
    const char* flags = mode == ByteFile::Mode::Read ? "rbe" : mode == ByteFile::Mode::Write ? "wbe" : "abe";
    return std::fopen(QFile::encodeName(path).constData(), flags);
#endif
}

/// False, with errno set, when the disk did not take what was written.
bool SyncToDisk(std::FILE* file) {
#ifdef Q_OS_WIN
    return _commit(_fileno(file)) == 0;
#else
    // What is no disk file, a pipe or a device, cannot be synced and need not be.
    return ::fsync(::fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
#endif
}

}  // namespace

ByteFile::ByteFile(const QString& localPath, Mode mode) : file_(OpenFile(localPath, mode)) {
    if (!file_) raiseErrno();
}

QByteArray ByteFile::read() {
    constexpr qsizetype kPart = 65536;
    QByteArray part(kPart, Qt::Uninitialized);
    const std::size_t got = std::fread(part.data(), 1, kPart, file_.get());
    if (got == 0 && std::ferror(file_.get())) raiseErrno();
    part.truncate(static_cast<qsizetype>(got));
    return part;
}

QByteArray ByteFile::readAll() {
    QByteArray bytes;
    for (QByteArray part = read(); !part.isEmpty(); part = read())
        bytes += part;
    return bytes;
}

void ByteFile::write(const QByteArray& bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, file_.get()) != size) raiseErrno();
}

void ByteFile::commit() {
    if (std::fflush(file_.get()) != 0 || !SyncToDisk(file_.get())) raiseErrno();
    if (std::fclose(file_.release()) != 0) raiseErrno();
}

}  // namespace akarix
