#include <QDir>

#include "platform/dao/StoreFixture.h"
#include "platform/dialect/Lexer.h"
#include "platform/dialect/Parser.h"
#include "platform/dialect/Translator.h"
#include "platform/runtime/Conversion.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

/// One statement of a .sqltest file and what is expected of it.
///
///   # a remark
///   > SELECT Code, Namae FROM Deal
///   : Code|Namae                       (names of the columns, if they matter)
///   2|Suzuki                           (a row; Null is written NULL, a text of no length EMPTY)
///   > SELECT Code FROM Deal ⇒ 2 / 3    (the same on one line)
///
/// In the place of rows: "ok" (a change or definition), "key Code" (a new table has that key, which no
/// statement can give it), "changed 3" (so many rows), "none" (no rows), "error 3075".
struct SqlCase {
    int line = 0;
    QString statement;
    QStringList expected;
};

QString Cell(const Variant& value) {
    if (value.IsNull()) return "NULL";
    const QString text = CStr(value);
    return text.isEmpty() ? "EMPTY" : text;
}

QStringList RowsOf(Recordset& rows, bool named) {
    QStringList lines;
    QStringList names;
    for (int i = 0; i < rows.FieldCount(); ++i)
        names.append(rows.Fields(i).Name());
    if (named) lines.append(": " + names.join(u'|'));
    for (; !rows.Eof(); rows.MoveNext()) {
        QStringList cells;
        for (int i = 0; i < rows.FieldCount(); ++i)
            cells.append(Cell(rows.Fields(i).Value()));
        lines.append(cells.join(u'|'));
    }
    return lines.isEmpty() ? QStringList{"none"} : lines;
}

QStringList Outcome(Database& database, const SqlCase& test) {
    const QString expected = test.expected.value(0);
    if (test.statement.startsWith(u"SELECT", Qt::CaseInsensitive)) {
        Recordset rows = database.OpenRecordset(test.statement);
        return RowsOf(rows, expected.startsWith(u": "));
    }
    if (expected.startsWith(u"key ")) {
        const std::vector<Token> tokens = Tokenize(test.statement);
        Definition table = std::get<Definition>(Parser(test.statement, tokens).statement());
        table.table.uniqueKeys = {expected.mid(4).split(u',')};
        database.engine().define(table);
        return test.expected;
    }
    if (expected.startsWith(u"changed")) {
        Engine& engine = database.engine();
        const BoundText bound = Translator(engine.catalogue()).translate(test.statement);
        return {QString("changed %1").arg(engine.change(bound))};
    }
    database.Execute(test.statement);
    return {"ok"};
}

std::vector<SqlCase> ReadSqlScript(const QString& path) {
    std::vector<SqlCase> cases;
    int number = 0;
    for (const QString& line : LinesOf(path)) {
        ++number;
        if (line.isEmpty() || line.startsWith(u"# ")) continue;
        if (line.startsWith(u"> ")) {
            const QStringList parts = line.mid(2).split(" ⇒ ");
            cases.push_back({number, parts[0], parts.value(1).split(" / ", Qt::SkipEmptyParts)});
        } else {
            cases.back().expected.append(line);
        }
    }
    return cases;
}

QStringList RunSqlCase(Database& database, const SqlCase& test) {
    try {
        return Outcome(database, test);
    } catch (const RuntimeError& error) {
        const QString number = QString("error %1").arg(error.number());
        const QString expected = test.expected.value(0);  // the number, and what its text must name
        if (expected.section(u' ', 0, 1) == number && error.description().contains(expected.section(u' ', 2)))
            return test.expected;
        return {number, error.description()};
    }
}

TEST(SqlScripts, GiveWhatTheyExpect) {
    const QDir folder(QStringLiteral(AKARIX_TEST_DATA));
    for (const QString& name : folder.entryList({"*.sqltest"}, QDir::Files)) {
        const QTemporaryDir store;
        Database& database =
            *DBEngine::Workspaces(0).CreateDatabase(store.filePath("Test.MDB"), "MS Access;PWD=dialect");
        const std::vector<SqlCase> cases = ReadSqlScript(folder.filePath(name));
        ASSERT_FALSE(cases.empty());
        for (const SqlCase& test : cases) {
            EXPECT_EQ(RunSqlCase(database, test).join(u'\n'), test.expected.join(u'\n'))
                << name.toStdString() << ':' << test.line << ' ' << test.statement.toStdString();
        }
        database.Close();
    }
}

}  // namespace
}  // namespace akarix
