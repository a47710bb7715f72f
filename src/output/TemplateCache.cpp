#include "output/TemplateCache.h"

#include <QDateTime>
#include <QFileInfo>
#include <map>

#include "platform/runtime/Literals.h"
#include "platform/sheet/SheetReader.h"

namespace akarix {
namespace {

struct ReadTemplate {
    QDateTime modified;
    qint64 size = 0;
    Sheet sheet;
};

}  // namespace

const Sheet& CachedTemplate(const QString& path) {
    static std::map<QString, ReadTemplate> read;
    const QFileInfo file(path);
    const QString key = file.absoluteFilePath();
    const auto known = read.find(key);
    if (known != read.end() && known->second.modified == file.lastModified() &&
        known->second.size == file.size())
        return known->second.sheet;
    ReadTemplate fresh{file.lastModified(), file.size(), ReadSheet(path, u"Sheet1"_s)};
    return (read[key] = std::move(fresh)).sheet;
}

}  // namespace akarix
