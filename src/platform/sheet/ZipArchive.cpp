#include "platform/sheet/ZipArchive.h"

#include <zip.h>

#include <QFile>
#include <QFileInfo>

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

ZipArchive::ZipArchive(const QString& path, Bounds bounds) : path_(path), bounds_(bounds) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) fail(u"ファイルが見つからないか、開けません。"_s);
    if (file.size() > bounds_.file) fail(u"ファイルが大きすぎます。"_s);
    file_ = file.readAll();
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source =
        zip_source_buffer_create(file_.constData(), static_cast<zip_uint64_t>(file_.size()), 0, &error);
    if (source) {
        archive_ = zip_open_from_source(source, ZIP_RDONLY, &error);
        if (!archive_) zip_source_free(source);
    }
    zip_error_fini(&error);
}

ZipArchive::~ZipArchive() {
    if (archive_) zip_discard(archive_);
}

QStringList ZipArchive::names() const {
    QStringList all;
    const zip_int64_t count = archive_ ? zip_get_num_entries(archive_, 0) : 0;
    for (zip_int64_t i = 0; i < count; ++i)
        all += QString::fromUtf8(zip_get_name(archive_, static_cast<zip_uint64_t>(i), 0));
    return all;
}

void ZipArchive::fail(const QString& reason) const {
    throw RuntimeError(1004, u"'%1': %2"_s.arg(QFileInfo(path_).fileName(), reason));
}

std::optional<QByteArray> ZipArchive::bytes(const QString& name) {
    const zip_int64_t index =
        zip_name_locate(archive_, name.toUtf8().constData(), ZIP_FL_NOCASE | ZIP_FL_ENC_UTF_8);
    if (index < 0) return std::nullopt;
    zip_file_t* file = zip_fopen_index(archive_, static_cast<zip_uint64_t>(index), 0);
    if (!file) fail(u"'%1' を読めません。"_s.arg(name));
    // The size that the archive claims is not to be trusted: read until the end or the bound.
    QByteArray data, chunk(1 << 16, Qt::Uninitialized);
    zip_int64_t got = 0;
    while ((got = zip_fread(file, chunk.data(), static_cast<zip_uint64_t>(chunk.size()))) > 0) {
        data.append(chunk.constData(), got);
        unpacked_ += got;
        if (unpacked_ > bounds_.unpacked) break;
    }
    zip_fclose(file);
    if (unpacked_ > bounds_.unpacked) fail(u"ファイルが大きすぎます。"_s);
    if (got < 0) fail(u"'%1' が壊れています。"_s.arg(name));
    return data;
}

}  // namespace akarix
