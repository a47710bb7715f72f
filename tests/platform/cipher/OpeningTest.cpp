#include <QDir>
#include <vector>

#include "platform/cipher/StoreFile.h"
#include "platform/cipher/StoreKey.h"
#include "platform/dao/StoreFixture.h"
#include "platform/runtime/Action.h"

namespace akarix {
namespace {

class OpeningTest : public StoreTest {
 protected:
    void makeStore() {
        const Action fast;
        Database& database = create();
        MakeTable(database, GoodsTable());
        for (int code = 1; code <= 2000; ++code)
            addRow(database, code);
        database.Close();
    }
    static void addRow(Database& database, int code) {
        const TablePtr table = database.engine().catalogue().find("goods");
        database.engine().insertRow(*table, {"Code", "Kana"}, {std::int64_t{code}, "ｱｲｳｴｵ"});
    }
    int openError(const QString& password = "secret1") {
        return ErrorOf([&] { open(password).Close(); });
    }
};

TEST_F(OpeningTest, TellsWhatIsWrongByNumber) {
    makeStore();
    const QByteArray sound = bytesOf(path());
    ASSERT_GT(sound.size(), 20 * kPageSize);
    const auto garbled = [&](qsizetype from, qsizetype length) {
        QByteArray bytes = sound;
        for (qsizetype i = from; i < from + length; ++i)
            bytes[i] = static_cast<char>(~bytes[i]);
        return bytes;
    };
    write(path(), sound);
    EXPECT_EQ(openError("other"), 3031);
    const std::tuple<const char*, QByteArray, int> cases[] = {
        {"sound", sound, 0},
        {"empty", {}, 3343},
        {"less than a page", sound.left(1000), 3343},
        {"long text", QByteArray(50000, 'x'), 3343},
        {"first page behind the mark", garbled(16, kPageSize - 16), 3343},
        {"first page with the mark", garbled(0, kPageSize), 3343},
        {"mark alone, which the right password can do without", garbled(0, 16), 0},
        {"one byte in the middle", garbled(10 * kPageSize + 77, 1), 3343},
        {"tail cut at a page", sound.left(sound.size() - 8 * kPageSize), 3343},
        {"tail cut inside a page", sound.left(sound.size() - 100), 3343},
    };
    for (const auto& [name, bytes, error] : cases) {
        write(path(), bytes);
        EXPECT_EQ(openError(), error) << name;
        EXPECT_EQ(bytesOf(path()), bytes) << name << ": opening must change nothing";
    }
}

TEST_F(OpeningTest, MissingAndExistingFiles) {
    EXPECT_EQ(openError(), 3024);
    EXPECT_FALSE(QFile::exists(path())) << "the store is never made by opening it";
    create().Close();
    EXPECT_EQ(openError(), 0);
    EXPECT_EQ(ErrorOf([&] { create(); }), 3204);
    QFile::remove(path());
    QDir().mkpath(path());
    EXPECT_EQ(openError(), 3024) << "a folder is no file";
}

TEST_F(OpeningTest, NothingReadableInTheBytes) {
    Database& database = create();
    MakeTable(database, GoodsTable());
    addRow(database, 1);
    database.Close();
    for (const char* word : {"CREATE TABLE", "ｱｲｳｴｵ", "secret1"})
        EXPECT_FALSE(bytesOf(path()).contains(word)) << word;
}

TEST_F(OpeningTest, ClosingLetsGoAndEndsAllUse) {
    Database& database = create();
    MakeTable(database, GoodsTable());
    Recordset rows = database.OpenRecordset("SELECT * FROM Goods");
    {
        const Action saving;
        addRow(database, 7);
        DBEngine::Workspaces(0).Close();
    }
    EXPECT_EQ(QDir(QFileInfo(path()).path()).entryList(QDir::Files), QStringList{"Store.MDB"});
    EXPECT_EQ(ErrorOf([&] { database.Execute("DELETE * FROM Goods"); }), 3420);
    EXPECT_EQ(ErrorOf([&] { rows.Eof(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { database.Close(); }), 3420);
    ASSERT_TRUE(QFile::copy(path(), path("Copy.MDB")));
    EXPECT_EQ(count(open("secret1", "Copy.MDB"), "Goods"), 1);
}

TEST_F(OpeningTest, CopyOfAnOpenStoreHoldsEverythingSoFar) {
    Database& database = create();
    MakeTable(database, GoodsTable());
    const Action saving;
    addRow(database, 1);
    database.engine().copyTo(path("Copy.MDB"));
    addRow(database, 2);
    EXPECT_EQ(count(open("secret1", "Copy.MDB"), "Goods"), 1);
    EXPECT_EQ(count(database, "Goods"), 2);
    EXPECT_EQ(ErrorOf([&] { database.engine().copyTo(path("no/such/folder")); }), 76);
}

TEST_F(OpeningTest, ACopyOfAFileIsSoundOrNotMade) {
    makeStore();
    const QString copy = path("Copy.MDB");
    DBEngine::CopyDatabase(path(), copy);
    const QByteArray sound = bytesOf(copy);
    EXPECT_EQ(sound, bytesOf(path()));

    // A desk whose power fails in the middle of a long write.
    const QString journal = "-journal";
    {
        const Connection desk = OpenStoreFile(path(), "secret1");
        akarix::Run(desk.get(), "PRAGMA cache_size=5");
        akarix::Run(desk.get(), "BEGIN IMMEDIATE");
        akarix::Run(desk.get(), "UPDATE Goods SET Kana='half'");
        ASSERT_TRUE(QFile::copy(path(), path("Died")));
        ASSERT_TRUE(QFile::copy(path() + journal, path("Died") + journal));
    }
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QFile::rename(path("Died"), path()));
    ASSERT_TRUE(QFile::rename(path("Died") + journal, path() + journal));
    ASSERT_NE(bytesOf(path()), sound);
    DBEngine::CopyDatabase(path(), copy);
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QFile::copy(copy, path()));
    Database& restored = open();
    EXPECT_EQ(count(restored, "Goods"), 2000);
    EXPECT_EQ(count(restored, "Goods WHERE Kana='half'"), 0);
    restored.Close();

    const QByteArray restoredBytes = bytesOf(copy);
    QByteArray damaged = sound;
    damaged.remove(10 * kPageSize, kPageSize);
    write(path(), damaged);
    EXPECT_EQ(ErrorOf([&] { DBEngine::CopyDatabase(path(), copy); }), 3343);
    EXPECT_EQ(QDir(QFileInfo(path()).path()).entryList(QDir::Files), (QStringList{"Copy.MDB", "Store.MDB"}));
    EXPECT_EQ(bytesOf(copy), restoredBytes) << "the older copy stands";
}

TEST_F(OpeningTest, ExclusiveAndReadOnly) {
    Database& made = create();
    MakeTable(made, GoodsTable());
    made.Close();
    Workspace& workspace = DBEngine::Workspaces(0);
    Database& reader = *workspace.OpenDatabase(path(), false, true, Connect());
    EXPECT_EQ(ErrorOf([&] { MakeTable(reader, GoodsTable("Further")); }), 3027);
    EXPECT_EQ(count(reader, "Goods"), 0);
    reader.Close();
    workspace.OpenDatabase(path(), true, false, Connect());
    EXPECT_EQ(ErrorOf([&] { DBEngine::RepairDatabase(path()); }), 3045) << "somebody works with the file";
}

}  // namespace
}  // namespace akarix
