#include "platform/sheet/WorkbookParts.h"

#include <zip.h>

#include <QFile>
#include <QFileInfo>
#include <cstring>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

namespace {

// A report's template is some dozen kilobytes; these bounds are for files made to exhaust the machine.
constexpr qint64 largestFile = 32LL << 20;
constexpr qint64 largestUnpacked = 128LL << 20;

QString resolved(const QString& base, const QString& target) {
    QStringList names = target.startsWith(u'/') ? QStringList() : base.split(u'/').mid(0, base.count(u'/'));
    for (const QString& name : target.split(u'/', Qt::SkipEmptyParts)) {
        if (name == u"..") {
            if (!names.isEmpty()) names.removeLast();
        } else if (name != u".") {
            names += name;
        }
    }
    return names.join(u'/');
}

const char* localName(const char* name) {
    const char* colon = std::strchr(name, ':');
    return colon ? colon + 1 : name;
}

}  // namespace

WorkbookParts::WorkbookParts(const QString& path) : path_(path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) fail(QStringLiteral("ファイルが見つからないか、開けません。"));
    if (file.size() > largestFile) fail(QStringLiteral("ファイルが大きすぎます。"));
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
    if (!archive_) fail(QStringLiteral("ブック (.xlsx) の形式ではありません。"));
}

WorkbookParts::~WorkbookParts() {
    zip_discard(archive_);
}

void WorkbookParts::fail(const QString& reason) const {
    throw RuntimeError(1004, QStringLiteral("'%1': %2").arg(QFileInfo(path_).fileName(), reason));
}

std::optional<QByteArray> WorkbookParts::bytes(const QString& part) {
    const QByteArray name = part.toUtf8();
    const zip_int64_t index = zip_name_locate(archive_, name.constData(), ZIP_FL_NOCASE | ZIP_FL_ENC_UTF_8);
    if (index < 0) return std::nullopt;
    zip_file_t* file = zip_fopen_index(archive_, static_cast<zip_uint64_t>(index), 0);
    if (!file) fail(QStringLiteral("'%1' を読めません。").arg(part));
    // The size that the archive claims is not to be trusted: read until the end or the bound.
    QByteArray data, chunk(1 << 16, Qt::Uninitialized);
    zip_int64_t got = 0;
    while ((got = zip_fread(file, chunk.data(), static_cast<zip_uint64_t>(chunk.size()))) > 0) {
        data.append(chunk.constData(), got);
        unpacked_ += got;
        if (unpacked_ > largestUnpacked) break;
    }
    zip_fclose(file);
    if (unpacked_ > largestUnpacked) fail(QStringLiteral("ファイルが大きすぎます。"));
    if (got < 0) fail(QStringLiteral("'%1' が壊れています。").arg(part));
    return data;
}

bool WorkbookParts::load(const QString& part, pugi::xml_document& document) {
    const auto data = bytes(part);
    if (!data) return false;
    const auto result = document.load_buffer(data->constData(), static_cast<size_t>(data->size()),
                                             pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!result) fail(QStringLiteral("'%1' が壊れています。").arg(part));
    return true;
}

std::vector<WorkbookParts::Relation> WorkbookParts::relations(const QString& part) {
    const qsizetype slash = part.lastIndexOf(u'/');
    const QString listed =
        part.left(slash + 1) + QStringLiteral("_rels/") + part.mid(slash + 1) + QStringLiteral(".rels");
    std::vector<Relation> found;
    pugi::xml_document document;
    if (!load(listed, document)) return found;
    for (const pugi::xml_node& node : document.document_element()) {
        if (!isNamed(node, "Relationship") ||
            std::strcmp(node.attribute("TargetMode").value(), "External") == 0)
            continue;
        const QString type = QString::fromUtf8(node.attribute("Type").value());
        found.push_back({QString::fromUtf8(node.attribute("Id").value()),
                         type.mid(type.lastIndexOf(u'/') + 1),
                         resolved(part, QString::fromUtf8(node.attribute("Target").value()))});
    }
    return found;
}

bool isNamed(const pugi::xml_node& node, const char* name) {
    return std::strcmp(localName(node.name()), name) == 0;
}

pugi::xml_node childNamed(const pugi::xml_node& parent, const char* name) {
    for (const pugi::xml_node& child : parent) {
        if (isNamed(child, name)) return child;
    }
    return {};
}

pugi::xml_attribute prefixedAttribute(const pugi::xml_node& node, const char* name) {
    for (const pugi::xml_attribute& attribute : node.attributes()) {
        if (std::strchr(attribute.name(), ':') && std::strcmp(localName(attribute.name()), name) == 0)
            return attribute;
    }
    return {};
}

bool isOn(const pugi::xml_attribute& attribute, bool otherwise) {
    if (!attribute) return otherwise;
    return std::strcmp(attribute.value(), "1") == 0 || std::strcmp(attribute.value(), "true") == 0 ||
           std::strcmp(attribute.value(), "on") == 0;
}

}  // namespace akarix
