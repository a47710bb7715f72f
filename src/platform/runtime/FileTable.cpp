#include "platform/runtime/FileTable.h"

#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "platform/runtime/ByteFile.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

constexpr int kHighestNumber = 511;

QString LocationOf(const QString& localPath) {
    const QFileInfo info(localPath);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

/// The old end-of-file mark still ends a text file that another machine wrote.
QByteArray UpToEndMark(QByteArray bytes) {
    const qsizetype mark = bytes.indexOf('\x1a');
    if (mark >= 0) bytes.truncate(mark);
    return bytes;
}

}  // namespace

FileTable& FileTable::instance() {
    static FileTable table;
    return table;
}

void FileTable::open(const QString& path, OpenMode mode, int number) {
    if (number < 1 || number > kHighestNumber) throw RuntimeError(52);
    if (files_.contains(number)) throw RuntimeError(55);
    if (path.isEmpty()) throw RuntimeError(75);
    RequireFolder(path);
    const QString local = LocalPath(path);
    if (QFileInfo(local).isDir()) throw RuntimeError(75);
    const QString location = LocationOf(local);
    for (const auto& [other, file] : files_) {
        const bool bothRead = mode == OpenMode::Input && file.mode == OpenMode::Input;
        if (file.location == location && !bothRead) throw RuntimeError(55);
    }
    OpenFile file{mode, location, {}, 0, std::nullopt};
    if (mode == OpenMode::Input) {
        file.input = UpToEndMark(ByteFile(local, ByteFile::Mode::Read).readAll());
    } else {
        file.output.emplace(local, mode == OpenMode::Output ? ByteFile::Mode::Write : ByteFile::Mode::Append);
        file.location = LocationOf(local);
    }
    files_.emplace(number, std::move(file));
}

void FileTable::close(int number) {
    auto node = files_.extract(number);  // the number is free again even when the disk refuses the rest
    if (node && node.mapped().output) node.mapped().output->commit();
}

int FileTable::lowestFree() const {
    for (int number = 1; number <= kHighestNumber; ++number)
        if (!files_.contains(number)) return number;
    throw RuntimeError(67);
}

OpenFile& FileTable::at(int number) {
    const auto found = files_.find(number);
    if (found == files_.end()) throw RuntimeError(52);
    return found->second;
}

OpenFile& FileTable::forInput(int number) {
    OpenFile& file = at(number);
    if (file.mode != OpenMode::Input) throw RuntimeError(54);
    return file;
}

ByteFile& FileTable::forOutput(int number) {
    OpenFile& file = at(number);
    if (!file.output) throw RuntimeError(54);
    return *file.output;
}

}  // namespace akarix
