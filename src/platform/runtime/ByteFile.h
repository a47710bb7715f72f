#pragma once

#include <QByteArray>
#include <QString>
#include <cstdio>
#include <memory>

namespace akarix {

/// A file of the machine as plain bytes. Every failure is a RuntimeError by errno, so that a disk that fills
/// up is noticed wherever the machine says so: at the write, at the flush or at the close.
class ByteFile {
 public:
    enum class Mode { Read, Write, Append };

    /// \param localPath the machine's path, see LocalPath()
    ByteFile(const QString& localPath, Mode mode);

    /// The next part of the file; empty at its end.
    QByteArray read();
    QByteArray readAll();
    void write(const QByteArray& bytes);
    /// Carries everything written to the disk itself and closes. Without it the file is closed unheard.
    void commit();

 private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closer> file_;
};

/// The classic number for an errno of a file call; 75 where nothing fits better.
int FileErrorNumber(int systemError);

/// Raises what a path's drive or folder is missing: 71 for the drive, 76 for the folder.
void RequireDrive(const QString& path);
void RequireFolder(const QString& path);

}  // namespace akarix
