#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

struct zip;

namespace akarix {

/// A zip archive that is read part by part, within bounds against files made to exhaust the machine.
class ZipArchive {
 public:
    struct Bounds {
        qint64 file;
        qint64 unpacked;  ///< of all parts read
    };

    /// Raises 1004 when the file cannot be read or is too large.
    ZipArchive(const QString& path, Bounds bounds);
    ~ZipArchive();
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;

    bool isArchive() const { return archive_ != nullptr; }
    /// The file as it stands, archive or not.
    const QByteArray& contents() const { return file_; }
    QStringList names() const;
    /// Nothing when there is no such part; 1004 when it is broken or too large.
    std::optional<QByteArray> bytes(const QString& name);

    /// Raises 1004 with the file's name and the reason.
    [[noreturn]] void fail(const QString& reason) const;

 private:
    QString path_;
    Bounds bounds_;
    QByteArray file_;
    zip* archive_ = nullptr;
    qint64 unpacked_ = 0;
};

}  // namespace akarix
