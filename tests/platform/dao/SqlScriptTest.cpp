#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/dao/DBEngine.h"
#include "platform/dao/SqlScript.h"

namespace akarix {
namespace {

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
