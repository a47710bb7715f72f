#include "platform/dao/SqlScript.h"

#include <QFile>
#include <QTextStream>

#include "platform/dao/Database.h"
#include "platform/dialect/Engine.h"
#include "platform/dialect/Lexer.h"
#include "platform/dialect/Parser.h"
#include "platform/dialect/Translator.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

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

}  // namespace

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

}  // namespace akarix
