#include "admin/PostalList.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>
#include <optional>

#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "platform/sheet/ZipArchive.h"

namespace akarix::admin {

namespace {

// The whole country is some 12 megabytes.
constexpr ZipArchive::Bounds kBounds{64LL << 20, 128LL << 20};
constexpr int kColumnCount = 15;
enum Column { Code = 2, Prefecture = 6, City = 7, Town = 8 };

QString Decoded(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return utf8.hasError() ? FromCodePage932(bytes) : text;
}

/// The fields of one line, quoted or not; a quote inside a field is doubled.
QStringList FieldsOf(QStringView line) {
    QStringList fields(QString{});
    bool isQuoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'"') {
            const bool isDoubled = isQuoted && i + 1 < line.size() && line[i + 1] == u'"';
            if (isDoubled) fields.last() += line[i++];
            if (!isDoubled) isQuoted = !isQuoted;
        } else if (line[i] == u',' && !isQuoted) {
            fields += QString();
        } else {
            fields.last() += line[i];
        }
    }
    return fields;
}

std::optional<int> CodeOf(const QString& text) {
    bool isNumber = false;
    const int code = text.toInt(&isNumber);
    return isNumber && text.size() == 7 && code > 0 ? std::optional(code) : std::nullopt;
}

class TableReader {
 public:
    /// False when the line is none of such a table.
    bool read(QStringView line) {
        const QStringList fields = FieldsOf(line);
        if (fields.size() != kColumnCount) return false;
        const auto code = CodeOf(fields[Code]);
        if (!code || fields[Prefecture].isEmpty()) return false;
        // A long remark runs over several lines of its code, the first of which says all.
        const bool goesOn = isInRemark_ && *code == code_;
        const qsizetype opened = goesOn ? 0 : fields[Town].lastIndexOf(u'（');
        isInRemark_ = opened >= 0 && fields[Town].indexOf(u'）', opened) < 0;
        code_ = *code;
        if (!goesOn) codes.add(*code, AsAddress({fields[Prefecture], fields[City], fields[Town]}));
        return true;
    }

    PostalCodes codes;

 private:
    bool isInRemark_ = false;
    int code_ = 0;
};

PostalCodes ReadTable(const QString& text, const ZipArchive& file) {
    TableReader reader;
    int number = 0;
    for (QStringView line : QStringView(text).split(u'\n')) {
        ++number;
        if (line.endsWith(u'\r')) line.chop(1);
        if (!line.isEmpty() && !reader.read(line))
            file.fail(u"%1 行目が郵便番号の一覧の形ではありません。"_s.arg(number));
    }
    return std::move(reader.codes);
}

PostalCodes ReadJson(const QByteArray& bytes, const ZipArchive& file) {
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject()) file.fail(u"JSON として読めません。"_s);
    PostalCodes codes;
    const QJsonObject all = document.object();
    for (auto entry = all.begin(); entry != all.end(); ++entry) {
        const auto code = CodeOf(entry.key());
        if (!code || !entry->isObject())
            file.fail(u"\"%1\" が郵便番号の一覧の形ではありません。"_s.arg(entry.key()));
        const QJsonObject prefectures = entry->toObject();
        for (auto prefecture = prefectures.begin(); prefecture != prefectures.end(); ++prefecture)
            for (const QJsonValue place : prefecture->toArray())
                codes.add(*code, AsAddress({prefecture.key(), {}, place.toString()}));
    }
    return codes;
}

/// The list inside an archive.
QByteArray ListIn(ZipArchive& archive) {
    for (const QString& name : archive.names())
        if (name.endsWith(u".csv", Qt::CaseInsensitive) || name.endsWith(u".json", Qt::CaseInsensitive))
            return *archive.bytes(name);
    archive.fail(u"郵便番号の一覧（CSV）が入っていません。"_s);
}

}  // namespace

PostalCodes ReadPostalList(const QString& path) {
    ZipArchive file(path, kBounds);
    const QByteArray bytes = file.isArchive() ? ListIn(file) : file.contents();
    PostalCodes codes =
        bytes.trimmed().startsWith('{') ? ReadJson(bytes, file) : ReadTable(Decoded(bytes), file);
    if (codes.places().empty()) file.fail(u"郵便番号が一つもありません。"_s);
    return codes;
}

}  // namespace akarix::admin
