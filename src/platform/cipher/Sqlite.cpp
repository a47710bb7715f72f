#include "platform/cipher/Sqlite.h"

#include "platform/cipher/RegisterFunctions.h"
#include "platform/dialect/StoreError.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

int ConstraintError(int extended) {
    switch (extended) {
        case SQLITE_CONSTRAINT_UNIQUE:
        case SQLITE_CONSTRAINT_PRIMARYKEY:
        case SQLITE_CONSTRAINT_ROWID:
            return 3022;
        case SQLITE_CONSTRAINT_NOTNULL:
            return 3314;
        default:
            return 3421;
    }
}

int ClassicNumber(int code, int extended) {
    switch (code) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return 3260;
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return 3343;
        case SQLITE_FULL:
            return 3026;
        case SQLITE_READONLY:
            return 3027;
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
            return 3051;
        case SQLITE_IOERR:
            return 3043;
        case SQLITE_NOMEM:
            return 7;
        case SQLITE_CONSTRAINT:
            return ConstraintError(extended);
        default:
            return 3075;
    }
}

/// The tables or columns that a constraint's message names behind its English words.
QString ConstrainedNames(const QByteArray& message) {
    const QByteArray mark = "failed: ";
    const qsizetype place = message.indexOf(mark);
    return place < 0 ? QString() : QString::fromUtf8(message.mid(place + mark.size()));
}

}  // namespace

QByteArray Quoted(const QString& name) {
    QString inner = name;
    return '"' + inner.replace(u'"', u"\"\""_s).toUtf8() + '"';
}

void RaiseEngineError(sqlite3* connection) {
    const int extended = sqlite3_extended_errcode(connection);
    const QByteArray message = sqlite3_errmsg(connection);
    if (const int number = FunctionErrorNumber(message)) throw RuntimeError(number);
    throw StoreError(ClassicNumber(extended & 0xff, extended), ConstrainedNames(message));
}

Statement Prepare(sqlite3* connection, const QByteArray& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql.constData(), static_cast<int>(sql.size()), &statement, nullptr) !=
        SQLITE_OK)
        RaiseEngineError(connection);
    return Statement(statement);
}

void Bind(sqlite3_stmt* statement, int index, const StoreValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        sqlite3_bind_int64(statement, index, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, index, *real);
    } else if (const auto* text = std::get_if<QString>(&value)) {
        sqlite3_bind_text16(statement, index, text->utf16(), static_cast<int>(text->size() * 2),
                            SQLITE_TRANSIENT);
    } else {
        sqlite3_bind_null(statement, index);
    }
}

StoreValue ValueOf(sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return std::int64_t{sqlite3_value_int64(value)};
        case SQLITE_FLOAT:
            return sqlite3_value_double(value);
        case SQLITE_NULL:
            return std::monostate{};
        default: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
            return QString::fromUtf8(text, sqlite3_value_bytes(value));
        }
    }
}

StoreValue ColumnValue(sqlite3_stmt* statement, int index) {
    // On a connection without a mutex such a value may be read like a protected one
    // (https://sqlite.org/c3ref/value.html).
    return ValueOf(sqlite3_column_value(statement, index));
}

bool Step(sqlite3* connection, sqlite3_stmt* statement) {
    switch (sqlite3_step(statement)) {
        case SQLITE_ROW:
            return true;
        case SQLITE_DONE:
            return false;
        default:
            RaiseEngineError(connection);
    }
}

void Run(sqlite3* connection, sqlite3_stmt* statement) {
    const ResetAtEnd reset(statement);
    while (Step(connection, statement)) {
    }
}

void Run(sqlite3* connection, const QByteArray& sql) {
    if (sqlite3_exec(connection, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        RaiseEngineError(connection);
}

}  // namespace akarix
