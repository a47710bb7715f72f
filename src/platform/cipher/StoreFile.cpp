#include "platform/cipher/StoreFile.h"

#include <QFileInfo>
#include <chrono>
#include <thread>

#include "platform/cipher/PageCipher.h"
#include "platform/cipher/RawFile.h"
#include "platform/cipher/RegisterFunctions.h"
#include "platform/cipher/SchemaCopy.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

constexpr int kPollMilliseconds = 2;
constexpr int kMostPolls = 10000 / kPollMilliseconds;

// The engine's own waiting doubles its pauses and starves beside a busy writer; short even ones do not.
int WaitForLock(void*, int polls) {
    if (polls >= kMostPolls) return 0;
    std::this_thread::sleep_for(std::chrono::milliseconds(kPollMilliseconds));
    return 1;
}

Connection OpenKeyed(const QString& path, const QString& password, int flags) {
    sqlite3* opened = nullptr;
    // The program has one thread; a lock at every call would be for nobody.
    const int result =
        sqlite3_open_v2(path.toUtf8().constData(), &opened, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    Connection connection(opened);
    if (result != SQLITE_OK) throw StoreError(3051, path);
    sqlite3_extended_result_codes(opened, 1);
    sqlite3_busy_handler(opened, WaitForLock, nullptr);
    const StoreKey key = KeyOfPassword(password);
    Run(opened, "PRAGMA key=\"x'" + key.encryption.toHex() + FileMark().toHex() + "'\"");
    // Newer releases of the engine need to be told the format; older ones pass over what they do not know.
    Run(opened, "PRAGMA cipher_compatibility=3");
    Run(opened, "PRAGMA cipher_page_size=" + QByteArray::number(kPageSize));
    // The schema names a collation of ours, so that not even a check of the file can do without.
    RegisterSqlFunctions(opened);
    return connection;
}

void Configure(sqlite3* connection, bool exclusive) {
    if (exclusive) {
        // The mode keeps what lock the connection gets; a transaction gets it the whole one now.
        Run(connection, "PRAGMA locking_mode=EXCLUSIVE");
        Run(connection, "BEGIN EXCLUSIVE");
        Run(connection, "COMMIT");
    }
    Run(connection, "PRAGMA journal_mode=DELETE");
    Run(connection, "PRAGMA synchronous=FULL");
    Run(connection, "PRAGMA cache_size=-16000");
    // Pages given back are blanked, so that salvage never takes rows long deleted for lost ones.
    Run(connection, "PRAGMA secure_delete=ON");
}

// The engine says the same of a wrong password and of a broken first page; the other pages tell which it is.
int NumberOfUnreadable(sqlite3* connection, const QString& password) {
    const RawFile file(connection);
    const PageCipher cipher(KeyOfPassword(password));
    for (int number = 1; number <= file.pageCount(); ++number)
        if (cipher.authentic(file.page(number), number)) return 3343;
    return file.page(1).startsWith(FileMark()) ? 3031 : 3343;
}

bool IsSound(sqlite3* connection) {
    const Statement check = Prepare(connection, "PRAGMA quick_check(1)");
    return Step(connection, check.get()) && std::get<QString>(ColumnValue(check.get(), 0)) == u"ok";
}

void Prove(sqlite3* connection, const QString& password) {
    try {
        Run(connection, "SELECT count(*) FROM sqlite_master");
    } catch (const RuntimeError&) {
        switch (sqlite3_errcode(connection) & 0xff) {
            case SQLITE_NOTADB:
                throw StoreError(NumberOfUnreadable(connection, password));
            case SQLITE_BUSY:
                throw StoreError(3356);
            case SQLITE_CANTOPEN:
            case SQLITE_PERM:
                throw;
            default:
                throw StoreError(3343);
        }
    }
    bool sound = false;
    try {
        sound = IsSound(connection);
    } catch (const RuntimeError& error) {
        if (error.number() == 3260) throw;
    }
    if (!sound) throw StoreError(3343);
}

}  // namespace

Connection OpenStoreFile(const QString& path, const QString& password, OpenAs mode) {
    const QFileInfo file(path);
    if (!file.isFile()) throw StoreError(3024, path);
    // The engine would take a file without a page for a new one.
    if (file.size() < kPageSize) throw StoreError(3343, path);
    Connection connection =
        OpenKeyed(path, password, mode.readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    Prove(connection.get(), password);
    Configure(connection.get(), mode.exclusive);
    return connection;
}

Connection CreateStoreFile(const QString& path, const QString& password) {
    Connection connection = OpenKeyed(path, password, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    Configure(connection.get(), false);
    Run(connection.get(), "BEGIN IMMEDIATE");
    RefreshSchemaCopy(connection.get());
    Run(connection.get(), "COMMIT");
    return connection;
}

QString JournalOf(const QString& path) {
    return path + u"-journal"_s;
}

void PlayBackJournal(const QString& path, const QString& password) {
    if (!QFileInfo::exists(JournalOf(path))) return;
    try {
        OpenStoreFile(path, password);
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch)
    }
}

}  // namespace akarix
