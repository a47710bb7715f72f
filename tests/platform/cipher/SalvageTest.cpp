#include <cmath>
#include <map>
#include <optional>

#include "platform/cipher/StoreKey.h"
#include "platform/dao/StoreFixture.h"
#include "platform/dialect/Translator.h"
#include "platform/runtime/Action.h"

namespace akarix {
namespace {

constexpr int kTables = 20;
constexpr int kLongTexts = 3;  // the table whose texts run over onto further pages
constexpr int kTextKey = 4;

using Row = std::vector<StoreValue>;
using Contents = std::map<std::pair<QString, std::int64_t>, Row>;  // by table and row number

TableDef Table(int number) {
    TableDef table{QString("T%1").arg(number), {}, {{"Nendo", "Deal"}}};
    table.columns = {{"Nendo", FieldType::Integer}, {"Deal", FieldType::Long}};
    // Shapes repeat: what tells two tables of one shape apart is not in the rows.
    constexpr FieldType kKinds[] = {FieldType::Text, FieldType::Currency, FieldType::Date,
                                    FieldType::Integer};
    for (int i = 0; i < 2 + number % 10; ++i)
        table.columns.push_back({QString("C%1").arg(i), kKinds[(i + number) % 4], 40, i == 3});
    if (number == kTextKey) table.uniqueKeys = {{"C0"}};
    if (number == kLongTexts) table.columns.push_back({"Memo", FieldType::Memo});
    return table;
}

StoreValue ValueFor(const ColumnDef& column, int table, int row) {
    const int seed = table * 100003 + row * 31;
    switch (column.type) {
        case FieldType::Text:
            return QString("名前%1").arg(seed);
        case FieldType::Memo:
            return QString(1400 + row * 10, QChar(u'あ' + row % 60));
        case FieldType::Currency:
            return std::int64_t{seed} * 10000000;
        case FieldType::Date:
            return 36526.0 + row % 300 + (row % 2 == 0 ? 0.5 : 0.0);
        default:
            return std::int64_t{seed % 30000};
    }
}

class SalvageTest : public StoreTest {
 protected:
    void SetUp() override {
        const Action fast;
        Database& database = create();
        for (int number = 0; number < kTables; ++number)
            MakeTable(database, Table(number));
        for (int number = 0; number < kTables; ++number)
            fill(database, number, number == kLongTexts ? 12 : 150 + 60 * (number % 7));
        written_ = contents(database);
        database.Close();
        sound_ = bytesOf(path());
    }

    static void fill(Database& database, int number, int rows) {
        const TablePtr table = database.engine().catalogue().find(QString("T%1").arg(number));
        std::vector<QString> names;
        for (const ColumnDef& column : table->columns)
            names.push_back(column.name);
        for (int row = 1; row <= rows; ++row) {
            StoreRow values{std::int64_t{2000 + row / 100}, std::int64_t{row * 7 + number}};
            for (std::size_t i = 2; i < table->columns.size(); ++i)
                values.push_back(ValueFor(table->columns[i], number, row));
            database.engine().insertRow(*table, names, values);
        }
    }

    static Contents contents(Database& database) {
        Contents all;
        Translator translator(database.engine().catalogue());
        for (const TablePtr& table : database.engine().catalogue().tables()) {
            for (Row& row : database.engine().rows(translator.translate("SELECT * FROM " + table->name))) {
                const auto number = std::get<std::int64_t>(row.back());
                row.pop_back();
                all[{table->name, number}] = std::move(row);
            }
        }
        return all;
    }

    static void garble(QByteArray& bytes, int page, int pages = 1) {
        for (int i = (page - 1) * kPageSize; i < (page - 1 + pages) * kPageSize && i < bytes.size(); ++i)
            bytes[i] = static_cast<char>(bytes[i] ^ static_cast<char>(i * 7 + 1));
    }

    /// Repairs a damaged file and proves that nothing in it is wrong. The share of rows it kept.
    double repaired(const QByteArray& damaged) {
        write(path(), damaged);
        EXPECT_EQ(ErrorOf([&] { open(); }), 3343);
        DBEngine::RepairDatabase(path());
        Database& database = open();
        EXPECT_EQ(database.engine().catalogue().tables().size(), static_cast<std::size_t>(kTables));
        const Contents found = contents(database);
        for (const auto& [place, row] : found) {
            const auto original = written_.find(place);
            EXPECT_TRUE(original != written_.end() && original->second == row)
                << place.first.toStdString() << ' ' << place.second;
        }
        database.Close();
        EXPECT_FALSE(QFile::exists(path() + ".repair"));
        return static_cast<double>(found.size()) / static_cast<double>(written_.size());
    }

    int pages() const { return static_cast<int>(sound_.size()) / kPageSize; }

    Contents written_;
    QByteArray sound_;
};

TEST_F(SalvageTest, EveryPageLostAloneCostsAtMostItsOwnRows) {
    ASSERT_GT(pages(), 90);
    for (int page = 1; page <= pages(); page += page < 4 ? 1 : 13) {
        SCOPED_TRACE(page);
        QByteArray bytes = sound_;
        garble(bytes, page);
        EXPECT_GT(repaired(bytes), 0.96);
    }
}

TEST_F(SalvageTest, ManyPagesLost) {
    QByteArray twenty = sound_;
    for (int i = 1; i <= 20; ++i)
        garble(twenty, i * pages() / 21);
    QByteArray head = sound_;
    garble(head, 1, 16);
    QByteArray firstPage = sound_;
    garble(firstPage, 1);
    const std::tuple<const char*, QByteArray, double> cases[] = {
        {"first page", firstPage, 1.0},
        {"twenty pages", twenty, 0.8},
        {"first 64 KB", head, 0.9},
        {"a tenth cut off", sound_.left(sound_.size() * 9 / 10), 0.8},
        {"half cut off, inside a page", sound_.left(sound_.size() / 2 + 1000), 0.25},
    };
    for (const auto& [name, bytes, least] : cases)
        EXPECT_GE(repaired(bytes), least) << name;
}

TEST_F(SalvageTest, DeletedRowsDoNotComeBack) {
    write(path(), sound_);
    Database& database = open();
    database.Execute("DELETE * FROM T6");
    written_ = contents(database);
    database.Close();
    QByteArray bytes = bytesOf(path());
    garble(bytes, 1, 3);
    EXPECT_GT(repaired(bytes), 0.95);
}

TEST_F(SalvageTest, RowsOlderThanAColumnGetItsDefault) {
    write(path(), sound_);
    Database& database = open();
    database.engine().define(
        {Definition::Kind::AddColumn, {"T5", {}, {}}, {"Kensin", FieldType::Integer, 0, true}});
    written_ = contents(database);
    database.Close();
    QByteArray bytes = bytesOf(path());
    garble(bytes, 1);
    EXPECT_EQ(repaired(bytes), 1.0);
}

TEST_F(SalvageTest, TheRepairedFileIsAFullStore) {
    QByteArray bytes = sound_;
    garble(bytes, pages() / 2);
    repaired(bytes);
    Database& database = open();
    const TablePtr table = database.engine().catalogue().find("T0");
    EXPECT_EQ(table->uniqueKeys.size(), 1U);
    const Row first = contents(database).begin()->second;
    EXPECT_EQ(ErrorOf([&] {
                  database.engine().insertRow(*table, {"Nendo", "Deal"}, {first[0], first[1]});
              }),
              3022);
    MakeTable(database, GoodsTable());
}

TEST_F(SalvageTest, WhatCannotBeReadIsLeftAlone) {
    QByteArray all = sound_;
    garble(all, 1, pages());
    for (const QByteArray& bytes : {all, QByteArray(), QByteArray("no store at all")}) {
        write(path(), bytes);
        EXPECT_EQ(ErrorOf([&] { DBEngine::RepairDatabase(path()); }), 3049);
        EXPECT_EQ(bytesOf(path()), bytes);
    }
    write(path(), sound_);
    EXPECT_EQ(ErrorOf([&] { open("other"); }), 3031);
    EXPECT_EQ(ErrorOf([&] { DBEngine::RepairDatabase(path()); }), 3049) << "with the password last given";
    EXPECT_EQ(bytesOf(path()), sound_);
    EXPECT_EQ(ErrorOf([&] { DBEngine::RepairDatabase(path("none")); }), 3024);
}

}  // namespace
}  // namespace akarix
