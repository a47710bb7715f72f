#include "platform/cipher/Repair.h"

#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "platform/cipher/CatalogueReader.h"
#include "platform/cipher/Salvage.h"
#include "platform/cipher/SchemaCopy.h"
#include "platform/cipher/StoreFile.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

std::filesystem::path NativePath(const QString& path) {
    return std::filesystem::path(path.toStdU16String());
}

void Discard(const QString& path) {
    QFile::remove(path);
    QFile::remove(JournalOf(path));
}

void Lock(RawFile& file, const QString& path) {
    if (!file.lock()) throw StoreError(3045, path);
}

void CreateTables(sqlite3* connection, const Salvage& salvage) {
    // Tables before the indexes on them.
    for (const char* kind : {"CREATE TABLE", "CREATE UNIQUE INDEX", "CREATE INDEX"}) {
        for (const auto& [name, object] : salvage.objects())
            if (object.text.startsWith(kind))
                sqlite3_exec(connection, object.text.constData(), nullptr, nullptr, nullptr);
    }
}

// A row older than its last columns leaves those to their defaults.
QByteArray InsertText(const TableDef& table, std::size_t values) {
    QByteArray names = "rowid";
    QByteArray places = "?1";
    for (std::size_t i = 0; i < values; ++i) {
        names += ',' + Quoted(table.columns[i].name);
        places += ",?" + QByteArray::number(static_cast<int>(i) + 2);
    }
    return "INSERT OR IGNORE INTO " + Quoted(table.name) + '(' + names + ") VALUES(" + places + ')';
}

void FillTable(sqlite3* connection, const TableDef& table, const std::vector<StoredRow>& rows) {
    std::map<std::size_t, Statement> inserts;
    for (const StoredRow& row : rows) {
        Statement& insert = inserts[row.values.size()];
        if (!insert) insert = Prepare(connection, InsertText(table, row.values.size()));
        Bind(insert.get(), 1, row.number);
        for (std::size_t i = 0; i < row.values.size(); ++i)
            Bind(insert.get(), static_cast<int>(i) + 2, row.values[i]);
        Run(connection, insert.get());
    }
}

void WriteSalvaged(const QString& path, const QString& password, Salvage& salvage) {
    const Connection connection = CreateStoreFile(path, password);
    Run(connection.get(), "BEGIN IMMEDIATE");
    CreateTables(connection.get(), salvage);
    const Catalogue catalogue = ReadCatalogue(connection.get());
    for (const auto& [name, rows] : salvage.rows(catalogue))
        FillTable(connection.get(), *catalogue.find(name), rows);
    RefreshSchemaCopy(connection.get());
    Run(connection.get(), "COMMIT");
}

}  // namespace

void RepairStoreFile(const QString& path, const QString& password) {
    if (!QFileInfo(path).isFile()) throw StoreError(3024, path);
    {
        RawFile file(path);
        Lock(file, path);
    }
    PlayBackJournal(path, password);
    const QString beside = path + u".repair"_s;
    Discard(beside);
    {
        RawFile file(path);
        Lock(file, path);
        const PageImage image(file, PageCipher(KeyOfPassword(password)));
        Salvage salvage(image);
        if (image.isEmpty() || salvage.objects().empty()) throw StoreError(3049, path);
        WriteSalvaged(beside, password, salvage);
    }
    // A journal that could not be played back belongs to the file that goes; beside the new one it would be
    // taken for the new one's.
    QFile::remove(JournalOf(path));
    std::filesystem::rename(NativePath(beside), NativePath(path));
}

}  // namespace akarix
