#include "platform/runtime/FileHolders.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <QFile>
#include <filesystem>

#include "platform/runtime/Literals.h"
#endif

namespace akarix {

#ifdef Q_OS_LINUX

namespace {

namespace fs = std::filesystem;

bool Holds(const fs::path& process, const fs::path& file) {
    std::error_code closed;
    for (fs::directory_iterator entry(process / "fd", closed), end; !closed && entry != end;
         entry.increment(closed)) {
        std::error_code gone;
        if (fs::equivalent(entry->path(), file, gone) && !gone) return true;
    }
    return false;
}

QString NameOf(const fs::path& process) {
    QFile name(QString::fromStdString((process / "comm").string()));
    const bool isTold = name.open(QFile::ReadOnly);
    const QString number = QString::fromStdString(process.filename().string());
    return u"%1 (%2)"_s.arg(isTold ? QString::fromLocal8Bit(name.readAll()).trimmed() : QString(), number);
}

}  // namespace

std::optional<QStringList> FileHolders(const QString& localPath) {
    const fs::path file(localPath.toStdU16String());
    std::error_code problem;
    const fs::path self = fs::read_symlink("/proc/self", problem);
    if (problem) return std::nullopt;
    QStringList holders;
    for (fs::directory_iterator entry("/proc", problem), end; !problem && entry != end;
         entry.increment(problem)) {
        const std::string name = entry->path().filename().string();
        const bool isProcess = name.find_first_not_of("0123456789") == std::string::npos;
        if (isProcess && name != self.string() && Holds(entry->path(), file))
            holders += NameOf(entry->path());
    }
    return holders;
}

#else

std::optional<QStringList> FileHolders(const QString&) {
    return std::nullopt;
}

#endif

}  // namespace akarix
