#include "platform/runtime/MachineMark.h"

#include <QtGlobal>

#include "platform/runtime/Literals.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QFile>
#include <algorithm>
#include <cerrno>
#else
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#endif

namespace akarix {

#ifdef Q_OS_UNIX

namespace {

/// Of a user who may not write it, too: looking is enough to lock.
int OpenMark(const QByteArray& path, bool make) {
    constexpr mode_t forAll = 0666;
    for (const int access : {O_RDWR, O_RDONLY}) {
        const int file = ::open(path.constData(), access | O_CLOEXEC | O_NOFOLLOW);
        if (file >= 0) return file;
    }
    if (!make) return -1;
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, forAll);
    if (file < 0) return errno == EEXIST ? OpenMark(path, false) : -1;  // another one was quicker to make it
    ::fchmod(file, forAll);  // past the mask, which is the user's own
    return file;
}

bool IsHeldByAnother(int file, int kind) {
    return ::flock(file, kind | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

/// The mark holds without its word, too.
void WriteWord(int file, const QByteArray& word) {
    const bool isEmpty = ::ftruncate(file, 0) == 0;
    [[maybe_unused]] const ssize_t written =
        isEmpty ? ::pwrite(file, word.constData(), static_cast<size_t>(word.size()), 0) : 0;
}

}  // namespace

struct MachineMark::Impl {
    QByteArray path;
    int file = -1;
};

MachineMark::MachineMark(const QString& localPath) : impl_(std::make_unique<Impl>()) {
    impl_->path = QFile::encodeName(localPath);
}

MachineMark::~MachineMark() {
    if (impl_->file >= 0) ::close(impl_->file);
}

bool MachineMark::take(const QString& word) {
    constexpr int mostTries = 20;
    constexpr useconds_t pause = 5000;
    if (impl_->file < 0) impl_->file = OpenMark(impl_->path, true);
    if (impl_->file < 0) return true;  // a machine without a place for it is no reason to stay shut
    // Somebody who asks for the word holds the mark for a moment.
    for (int i = 0; IsHeldByAnother(impl_->file, LOCK_EX); ++i) {
        if (i == mostTries) return false;
        ::usleep(pause);
    }
    WriteWord(impl_->file, word.toUtf8());
    return true;
}

std::optional<QString> MachineMark::wordOf(const QString& localPath) {
    const int file = OpenMark(QFile::encodeName(localPath), false);
    if (file < 0) return std::nullopt;
    const bool isHeld = IsHeldByAnother(file, LOCK_SH);
    QByteArray text(4096, '\0');
    const ssize_t length = isHeld ? ::pread(file, text.data(), static_cast<size_t>(text.size()), 0) : 0;
    ::close(file);
    if (!isHeld) return std::nullopt;
    return QString::fromUtf8(text.constData(), std::max<ssize_t>(0, length));
}

QString MachineMarkFolder() {
    for (const char* folder : {"/run/lock", "/var/lock"}) {
        struct stat found {};
        if (::stat(folder, &found) == 0 && S_ISDIR(found.st_mode) && (found.st_mode & S_IWOTH) != 0)
            return QString::fromLatin1(folder);
    }
    return u"/tmp"_s;  // not the user's own, which TMPDIR may name
}

#else

struct MachineMark::Impl {
    QLockFile file;
};

MachineMark::MachineMark(const QString& localPath) : impl_(new Impl{QLockFile(localPath)}) {
    // A mark left behind by a killed process is known by its process number, not by its age.
    impl_->file.setStaleLockTime(0);
}

MachineMark::~MachineMark() = default;

bool MachineMark::take(const QString&) {
    return impl_->file.tryLock(0) || impl_->file.error() != QLockFile::LockFailedError;
}

std::optional<QString> MachineMark::wordOf(const QString& localPath) {
    return MachineMark(localPath).take({}) ? std::nullopt : std::optional<QString>(QString());
}

QString MachineMarkFolder() {
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    return folders.value(1, QDir::tempPath());  // behind the user's own comes everybody's
}

#endif

}  // namespace akarix
