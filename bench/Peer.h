#pragma once

#include <sqlcipher/sqlite3.h>

#include <QString>
#include <stdexcept>

#include "platform/cipher/StoreKey.h"
#include "store/dbAccess.h"

namespace akarix::bench {

/// What a program written by hand on the bare engine would open: the same file, key and settings as the
/// store, and none of its layers.
class PeerStore {
 public:
    explicit PeerStore(const QString& path) {
        check(sqlite3_open_v2(path.toUtf8().constData(), &connection_,
                              SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr));
        const StoreKey key = KeyOfPassword(ConnectText().section(u'=', 1));
        run("PRAGMA key=\"x'" + key.encryption.toHex() + FileMark().toHex() + "'\"");
        run("PRAGMA cipher_page_size=" + QByteArray::number(kPageSize));
        run("PRAGMA synchronous=FULL");
        run("PRAGMA cache_size=-16000");
        run("PRAGMA secure_delete=ON");
    }
    ~PeerStore() { sqlite3_close(connection_); }
    PeerStore(const PeerStore&) = delete;
    PeerStore& operator=(const PeerStore&) = delete;

    sqlite3* connection() const { return connection_; }
    void run(const QByteArray& sql) {
        check(sqlite3_exec(connection_, sql.constData(), nullptr, nullptr, nullptr));
    }
    void check(int result) const {
        if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(connection_));
    }

 private:
    sqlite3* connection_ = nullptr;
};

/// A statement prepared once.
class PeerStatement {
 public:
    PeerStatement(const PeerStore& store, const char* sql) : store_(store) {
        store.check(sqlite3_prepare_v2(store.connection(), sql, -1, &statement_, nullptr));
    }
    ~PeerStatement() { sqlite3_finalize(statement_); }
    PeerStatement(const PeerStatement&) = delete;
    PeerStatement& operator=(const PeerStatement&) = delete;

    /// Begins a new run with these values.
    template <class... Values>
    PeerStatement& with(Values... values) {
        sqlite3_reset(statement_);
        int place = 0;
        (bind(++place, values), ...);
        return *this;
    }
    bool next() {
        const int result = sqlite3_step(statement_);
        store_.check(result);
        if (result == SQLITE_DONE) sqlite3_reset(statement_);
        return result == SQLITE_ROW;
    }
    void run() {
        while (next()) {
        }
    }
    void reset() { sqlite3_reset(statement_); }

    int columns() const { return sqlite3_column_count(statement_); }
    std::int64_t whole(int column) const { return sqlite3_column_int64(statement_, column); }
    QString text(int column) const {
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement_, column)));
    }

 private:
    void bind(int place, double value) { sqlite3_bind_double(statement_, place, value); }
    void bind(int place, int value) { sqlite3_bind_int(statement_, place, value); }
    void bind(int place, std::int64_t value) { sqlite3_bind_int64(statement_, place, value); }
    void bind(int place, const char* text) { sqlite3_bind_text(statement_, place, text, -1, SQLITE_STATIC); }

    const PeerStore& store_;
    sqlite3_stmt* statement_ = nullptr;
};

}  // namespace akarix::bench
