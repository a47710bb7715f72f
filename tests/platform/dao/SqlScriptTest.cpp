#include <QDir>
#include <QTextStream>

#include "platform/dao/StoreFixture.h"
#include "platform/dialect/Lexer.h"
#include "platform/dialect/Parser.h"
#include "platform/dialect/Translator.h"
#include "platform/runtime/Conversion.h"

namespace akarix {
namespace {

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

QString Cell(const Variant& value) {
    if (value.IsNull()) return "NULL";
    const QString text = CStr(value);
    return text.isEmpty() ? "EMPTY" : text;
}

QStringList RowsOf(Recordset& rows, const SqlCase& test) {
    QStringList lines;
    if (!test.columns.isEmpty()) {
        QStringList names;
        for (int i = 0; i < rows.FieldCount(); ++i)
            names.append(rows.Fields(i).Name());
        const QString found = names.join(u'|');
        if (found != test.columns) lines.append(": " + found);
    }
    for (; !rows.Eof(); rows.MoveNext()) {
        QStringList cells;
        for (int i = 0; i < rows.FieldCount(); ++i)
            cells.append(Cell(rows.Fields(i).Value()));
        lines.append(cells.join(u'|'));
    }
    if (lines.isEmpty()) lines.append("none");
    return lines;
}

QStringList Outcome(Database& database, const SqlCase& test) {
    const QString start = test.statement.trimmed();
    if (start.startsWith(u"SELECT", Qt::CaseInsensitive)) {
        Recordset rows = database.OpenRecordset(test.statement);
        const QStringList lines = RowsOf(rows, test);
        return test.expected == QStringList{"runs"} ? test.expected : lines;
    }
    if (test.expected.value(0).startsWith(u"key ")) {
        const std::vector<Token> tokens = Tokenize(test.statement);
        Definition table = std::get<Definition>(Parser(test.statement, tokens).statement());
        table.table.uniqueKeys = {test.expected.first().mid(4).split(u',')};
        database.engine().define(table);
        return test.expected;
    }
    if (test.expected.value(0).startsWith(u"changed")) {
        Engine& engine = database.engine();
        return {QString("changed %1")
                    .arg(engine.change(Translator(engine.catalogue()).translate(test.statement)))};
    }
    database.Execute(test.statement);
    return {"ok"};
}

std::vector<SqlCase> ReadSqlScript(const QString& path) {
    std::vector<SqlCase> cases;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return cases;
    QTextStream in(&file);
    int number = 0;
    while (!in.atEnd()) {
        const QString line = in.readLine();
        ++number;
        if (line.isEmpty() || line.startsWith(u"# ")) continue;
        if (line.startsWith(u"> "))
            cases.push_back({number, line.mid(2), {}, {}});
        else if (line.startsWith(u". "))
            cases.back().statement += u'\n' + line.mid(2);
        else if (line.startsWith(u": "))
            cases.back().columns = line.mid(2);
        else
            cases.back().expected.append(line);
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

/// Every .sqltest file of the folder is one test on a database of its own.
class SqlScripts : public testing::TestWithParam<std::string> {};

std::vector<std::string> ScriptNames() {
    std::vector<std::string> names;
    const QDir folder(QStringLiteral(AKARIX_TEST_DATA));
    for (const QString& file : folder.entryList({"*.sqltest"}, QDir::Files, QDir::Name))
        names.push_back(file.chopped(8).toStdString());
    return names;
}

TEST_P(SqlScripts, GiveWhatTheyExpect) {
    const QTemporaryDir folder;
    Database& database =
        *DBEngine::Workspaces(0).CreateDatabase(folder.filePath("Test.MDB"), "MS Access;PWD=dialect");
    const QString path = QString(AKARIX_TEST_DATA "/%1.sqltest").arg(QString::fromStdString(GetParam()));
    const std::vector<SqlCase> cases = ReadSqlScript(path);
    ASSERT_FALSE(cases.empty());
    for (const SqlCase& test : cases) {
        EXPECT_EQ(RunSqlCase(database, test).join(u'\n').toStdString(),
                  test.expected.join(u'\n').toStdString())
            << qPrintable(path) << ':' << test.line << '\n'
            << test.statement.toStdString();
    }
    database.Close();
}

INSTANTIATE_TEST_SUITE_P(Dialect, SqlScripts, testing::ValuesIn(ScriptNames()),
                         [](const auto& script) { return script.param; });

}  // namespace
}  // namespace akarix
