#include "platform/cipher/CipherEngine.h"

#include <QSaveFile>

#include "platform/cipher/CatalogueReader.h"
#include "platform/cipher/Definitions.h"
#include "platform/cipher/RawFile.h"
#include "platform/cipher/SchemaCopy.h"
#include "platform/dialect/StoreError.h"

namespace akarix {
namespace {

void BindAll(sqlite3_stmt* statement, const StoreRow& values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        Bind(statement, static_cast<int>(i) + 1, values[i]);
}

// The engine passes over rows whose key is taken and so cannot be told to take the others back on an error.
void RunWhollyOrNot(sqlite3* connection, sqlite3_stmt* statement) {
    Run(connection, "SAVEPOINT change");
    try {
        Run(connection, statement);
    } catch (...) {
        sqlite3_exec(connection, "ROLLBACK TO change;RELEASE change", nullptr, nullptr, nullptr);
        throw;
    }
    Run(connection, "RELEASE change");
}

// Holds the file against writers, not against readers, while it lives.
class SharedLock {
 public:
    explicit SharedLock(sqlite3* connection) : connection_(connection) {
        Run(connection, "BEGIN");
        Run(connection, "SELECT count(*) FROM sqlite_master");
    }
    ~SharedLock() { sqlite3_exec(connection_, "COMMIT", nullptr, nullptr, nullptr); }
    SharedLock(const SharedLock&) = delete;
    SharedLock& operator=(const SharedLock&) = delete;

 private:
    sqlite3* connection_;
};

void CopyPages(const RawFile& source, QSaveFile& target, Progress& progress) {
    const int count = source.pageCount();
    for (int number = 1; number <= count; ++number) {
        progress.step(number - 1, count);
        const QByteArray page = source.page(number);
        if (page.isEmpty()) throw StoreError(3043);
        if (target.write(page) != page.size()) throw RuntimeError(61);
    }
}

}  // namespace

CipherEngine::CipherEngine(Connection connection)
    : connection_(std::move(connection)),
      catalogue_(ReadCatalogue(connection_.get())),
      statements_(std::make_unique<StatementCache>(connection_.get())),
      group_(std::make_unique<WriteGroup>(connection_.get())) {}

CipherEngine::~CipherEngine() {
    try {
        close();
    } catch (...) {
        // Nobody is left to be told; what is uncommitted is rolled back.
    }
}

sqlite3* CipherEngine::connection() const {
    if (!connection_) throw StoreError(3420);
    return connection_.get();
}

std::vector<StoreRow> CipherEngine::rows(const BoundText& text) {
    sqlite3* open = connection();
    sqlite3_stmt* query = statements_->of(text.statement).statement.get();
    const ResetAtEnd reset(query);
    BindAll(query, text.values);
    const int width = sqlite3_column_count(query);
    std::vector<StoreRow> all;
    while (Step(open, query)) {
        StoreRow& row = all.emplace_back();
        row.reserve(static_cast<std::size_t>(width));
        for (int i = 0; i < width; ++i)
            row.push_back(ColumnValue(query, i));
    }
    return all;
}

void CipherEngine::write(sqlite3_stmt* statement, const StoreRow& values, bool mayStopHalfway) {
    group_->begin();
    try {
        BindAll(statement, values);
        if (mayStopHalfway)
            RunWhollyOrNot(connection_.get(), statement);
        else
            Run(connection_.get(), statement);
    } catch (...) {
        group_->failed();
        throw;
    }
}

std::int64_t CipherEngine::change(const BoundText& text) {
    sqlite3* open = connection();
    const PreparedStatement& prepared = statements_->of(text.statement);
    write(prepared.statement.get(), text.values, prepared.computes);
    const int changed = sqlite3_changes(open);
    group_->end();
    return changed;
}

void CipherEngine::define(Definition definition) {
    sqlite3* open = connection();
    CheckDefinition(definition, catalogue_);
    group_->commit();
    statements_->clear();
    group_->begin();
    try {
        Define(open, catalogue_, definition);
        RefreshSchemaCopy(open);
        group_->commit();
    } catch (...) {
        group_->rollback();
        throw;
    }
    catalogue_.replace(ReadCatalogue(open));
}

std::int64_t CipherEngine::insertRow(const TableDef& table, const std::vector<QString>& columns,
                                     const StoreRow& values) {
    sqlite3* open = connection();
    write(statements_->of(RowWrite::Insert, table, columns), values);
    const std::int64_t row = sqlite3_last_insert_rowid(open);
    group_->end();
    return row;
}

void CipherEngine::updateRow(const TableDef& table, std::int64_t row, const std::vector<QString>& columns,
                             const StoreRow& values) {
    sqlite3* open = connection();
    if (columns.empty()) return;
    StoreRow arguments = values;
    arguments.emplace_back(row);
    write(statements_->of(RowWrite::Update, table, columns), arguments);
    const int changed = sqlite3_changes(open);
    group_->end();
    if (changed == 0) throw StoreError(3167);
}

void CipherEngine::flush() {
    connection();
    group_->commit();
}

void CipherEngine::copyTo(const QString& path, Progress& progress) {
    sqlite3* open = connection();
    group_->commit();
    QSaveFile target(path);
    if (!target.open(QIODevice::WriteOnly)) throw RuntimeError(76);
    {
        // Only while it is read: a slow disk at the other end must not keep the other desks from writing.
        const SharedLock lock(open);
        CopyPages(RawFile(open), target, progress);
    }
    if (!target.commit()) throw RuntimeError(61);
}

void CipherEngine::close() {
    if (!connection_) return;
    // The file is let go of even when the last commit fails.
    const Connection closing = std::move(connection_);
    const std::unique_ptr<StatementCache> statements = std::move(statements_);
    const std::unique_ptr<WriteGroup> group = std::move(group_);
    group->commit();
}

}  // namespace akarix
