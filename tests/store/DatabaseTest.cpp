#include <QStringList>

#include "platform/runtime/RuntimeError.h"
#include "store/Tables.h"
#include "support/ScratchStore.h"

namespace akarix {
namespace {

QStringList failures;

void NoteFailure(const QString& text, const QString& title) {
    failures.append(title + u'|' + text);
}

class DatabaseTest : public testing::Test {
 protected:
    void SetUp() override { failures.clear(); }
};

TEST_F(DatabaseTest, TheDeliveredFileHasEveryTableAndItsSettings) {
    const ScratchStore store;
    for (const TableDef& table : Tables()) {
        Recordset set = gDb->OpenRecordset("SELECT * FROM " + table.name);
        ASSERT_EQ(set.FieldCount(), static_cast<int>(table.columns.size())) << table.name.toStdString();
        for (const ColumnDef& column : table.columns) {
            Field& field = set.Fields(column.name);
            EXPECT_EQ(field.Type(), column.type) << column.name.toStdString();
            EXPECT_TRUE(column.type != FieldType::Text || field.Size() == column.size);
        }
    }
    EXPECT_EQ(ScratchStore::rows("SELECT Code,contents FROM zSysFunc ORDER BY Code"),
              (QStringList{"1|31", "2|1", "3|25", "100|1", "123| "}));
    EXPECT_EQ(ScratchStore::rows("SELECT COUNT(*) AS n FROM UserOP WHERE Code<=22").value(0), "22");
}

TEST_F(DatabaseTest, AmountsThatAreNotGivenAreZero) {
    const ScratchStore store;
    const char* const rows[][3] = {
        {"TtoD(Deal,Nendo,Getudo) VALUES(1,2011,3)",
         "ZenkaiGaku+GGaku+UGaku+Gaku-NGaku,NFlg,SyokiFlg FROM TtoD", "0|0|0"},
        {"Dgd(Nendo,Getudo,Deal) VALUES(2011,3,1)",
         "ZenkaiMeter+KoukanMeter+KoukanGoMeter+KonkaiMeter+Suu+Gaku,Rte FROM Dgd", "0|0"},
        {"Dud(Dno,Eda) VALUES(1,1)", "Suu+Tanka+Gaku,CreateAuto FROM Dud", "0|0"},
        {"Dny(Dno) VALUES(1)", "Eda,Kubun,Gaku FROM Dny", "0|0|0"},
    };
    for (const auto& [row, amounts, zeros] : rows) {
        gDb->Execute(QString("INSERT INTO ") + row);
        EXPECT_EQ(ScratchStore::rows(QString("SELECT ") + amounts), QStringList(zeros));
    }
}

TEST_F(DatabaseTest, KeysDropTheSecondRow) {
    const ScratchStore store;
    const QString keys[] = {
        "Deal(Code) VALUES(1)",
        "Tnk(Ptn,Capa) VALUES(1,2.5)",
        "GasKeisan(Ptn,St,Ed) VALUES(1,0,5)",
        "Dud(Dno,Eda) VALUES(1,1)",
        "Dgd(Nendo,Getudo,Deal) VALUES(2011,3,1)",
        "Dny(Dno,Eda) VALUES(1,1)",
        "TtoD(Deal,Nendo,Getudo) VALUES(1,2011,3)",
        "Syukei(Nen,Tuki) VALUES(2011,3)",
    };
    for (const QString& row : keys) {
        gDb->Execute("INSERT INTO " + row);
        gDb->Execute("INSERT INTO " + row);
        EXPECT_EQ(ScratchStore::rows("SELECT * FROM " + row.section(u'(', 0, 0)).size(), 1)
            << row.toStdString();
    }
}

TEST_F(DatabaseTest, MigrationBringsAnOlderFileUpToDateAndCanBeRunAgain) {
    const ScratchStore store(false);
    QFile::remove(store.path());
    DBEngine::Workspaces(0).CreateDatabase(DatabaseName(), ConnectText())->Close();
    ASSERT_TRUE(OpenDb(NoteFailure));
    ScratchStore::run(
        "CREATE TABLE Rte(Code Integer, Kana Text(20), Namae Text(30));\n"
        "CREATE TABLE Bnk(Code Integer, BkName Text(15));\n"
        "CREATE TABLE GasKeisan(Ptn Integer, St Integer, Ed Integer, Kihon Integer, "
        "Tanka Integer);\n"
        "INSERT INTO GasKeisan(Ptn,St,Ed,Kihon,Tanka) VALUES(1,0,5,1800,480);\n");
    for (int start = 0; start < 2; ++start) {
        MigrateDb();
        ScratchStore::run("UPDATE GasKeisan SET Tanka=480.5;\n");
        EXPECT_EQ(ScratchStore::rows("SELECT Kihon,Tanka FROM GasKeisan"), QStringList{"1800|480.5"});
        EXPECT_TRUE(ScratchStore::rows("SELECT Code,Zan FROM TempZan").isEmpty());
        EXPECT_TRUE(ScratchStore::rows("SELECT Kensin FROM Rte").isEmpty());
        EXPECT_TRUE(ScratchStore::rows("SELECT Keiyaku,Jimusyo FROM Bnk").isEmpty());
    }
}

TEST_F(DatabaseTest, AMissingFileAndAWrongPasswordAreTold) {
    const ScratchStore store(false);
    QFile::remove(store.path());
    EXPECT_FALSE(OpenDb(NoteFailure));
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].startsWith("エラー|エラー番号  3024")) << failures[0].toStdString();
    EXPECT_TRUE(failures[0].contains(" でエラーが発生しました。 \r"));
    EXPECT_FALSE(QFile::exists(store.path()));

    DBEngine::Workspaces(0).CreateDatabase(DatabaseName(), "MS Access;PWD=other")->Close();
    EXPECT_FALSE(OpenDb(NoteFailure));
    ASSERT_EQ(failures.size(), 2);
    EXPECT_TRUE(failures[1].startsWith("エラー|エラー番号  3031")) << failures[1].toStdString();
}

TEST_F(DatabaseTest, ADamagedFileIsRepairedWithoutAWord) {
    const ScratchStore store;
    CloseDb();
    QFile file(store.path());
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    ASSERT_TRUE(file.seek(file.size() - 100));
    file.write(QByteArray(60, 'x'));
    file.close();
    EXPECT_TRUE(OpenDb(NoteFailure));
    EXPECT_TRUE(failures.isEmpty());
    EXPECT_EQ(ScratchStore::rows("SELECT contents FROM zSysFunc WHERE Code=1").size(), 1);
}

}  // namespace
}  // namespace akarix
