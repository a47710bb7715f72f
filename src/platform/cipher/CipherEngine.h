#pragma once

#include "platform/cipher/Sqlite.h"
#include "platform/cipher/StatementCache.h"
#include "platform/cipher/WriteGroup.h"
#include "platform/dialect/Engine.h"

namespace akarix {

/// The engine on SQLCipher.
class CipherEngine final : public Engine {
 public:
    explicit CipherEngine(Connection connection);
    ~CipherEngine() override;

    const Catalogue& catalogue() const override { return catalogue_; }
    std::vector<StoreRow> rows(const BoundText& text) override;
    std::int64_t change(const BoundText& text) override;
    void define(Definition definition) override;
    std::int64_t insertRow(const TableDef& table, const std::vector<QString>& columns,
                           const StoreRow& values) override;
    void updateRow(const TableDef& table, std::int64_t row, const std::vector<QString>& columns,
                   const StoreRow& values) override;
    void flush() override;
    void copyTo(const QString& path, Progress& progress) override;
    void close() override;

 private:
    sqlite3* connection() const;
    void write(sqlite3_stmt* statement, const StoreRow& values, bool mayStopHalfway = false);

    Connection connection_;
    Catalogue catalogue_;
    std::unique_ptr<StatementCache> statements_;
    std::unique_ptr<WriteGroup> group_;
};

}  // namespace akarix
