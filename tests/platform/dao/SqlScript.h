#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace akarix {

class Database;

/// One statement of a .sqltest file and what is expected of it.
///
///   # a remark
///   > SELECT Code, Namae FROM Deal
///   . WHERE Code > 1                   (the statement goes on)
///   : Code|Namae                       (names of the columns, if they matter)
///   2|Suzuki                           (a row; Null is written NULL, a text of no length EMPTY)
///
/// In the place of rows: "ok" (a change or definition), "key Code" (a new table has that key, which no
/// statement can give it), "changed 3" (so many rows), "none" (no rows),
/// "runs" (rows or none, no matter which), "error 3075".
struct SqlCase {
    int line = 0;
    QString statement;
    QString columns;
    QStringList expected;
};

std::vector<SqlCase> ReadSqlScript(const QString& path);

/// What the statement gives, in the words of the file.
QStringList RunSqlCase(Database& database, const SqlCase& test);

}  // namespace akarix
