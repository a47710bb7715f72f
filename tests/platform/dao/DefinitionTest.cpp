#include "platform/dao/StoreFixture.h"

namespace akarix {
namespace {

using Kind = Definition::Kind;

QString Described(const ColumnDef& column) {
    return QString("%1 %2 %3 %4 %5")
        .arg(column.name)
        .arg(static_cast<int>(column.type))
        .arg(column.size)
        .arg(column.zeroDefault)
        .arg(column.required);
}

class DefinitionTest : public StoreTest {
 protected:
    void SetUp() override { database_ = &create(); }

    /// 0, or the number of the error; an error must leave the file as it was.
    int define(Kind kind, const TableDef& table, const ColumnDef& column = {},
               const QStringList& indexed = {}) {
        database_->engine().flush();
        const QByteArray before = bytesOf(path());
        const int error = ErrorOf([&] {
            database_->engine().define({kind, table, column, "ByKana", indexed});
        });
        EXPECT_TRUE(error == 0 || bytesOf(path()) == before);
        return error;
    }
    TablePtr goods() { return database_->engine().catalogue().find("GOODS"); }
    ColumnDef column(const QString& name) { return goods()->at(goods()->indexOf(name)); }
    Variant value(const QString& name) {
        return database_->OpenRecordset("SELECT * FROM Goods WHERE Code=3")[name];
    }

    Database* database_ = nullptr;
};

TEST_F(DefinitionTest, EveryKindIsReadBack) {
    TableDef table{"Kinds", {}, {{"C1", "C2"}, {"C3"}}};
    for (const int type : {1, 2, 3, 4, 5, 6, 7, 8, 10, 12}) {
        table.columns.push_back(
            {QString("C%1").arg(type), static_cast<FieldType>(type), type == 10 ? 30 : 0, type < 5});
    }
    ASSERT_EQ(define(Kind::CreateTable, table), 0);
    database_->Close();
    database_ = &open();
    const TablePtr found = database_->engine().catalogue().find("kinds");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, u"Kinds");
    EXPECT_EQ(found->uniqueKeys, table.uniqueKeys);
    ASSERT_EQ(found->columns.size(), table.columns.size());
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        ColumnDef expected = table.columns[i];
        expected.required = i < 2;
        EXPECT_EQ(Described(found->columns[i]), Described(expected));
    }
}

TEST_F(DefinitionTest, ASecondRunOfTheSameStepFailsAndChangesNothing) {
    struct Step {
        Kind kind;
        TableDef table;
        ColumnDef column;
        QStringList indexed;
        int secondError;
    };
    const QString name = "Goods";
    const Step steps[] = {
        {Kind::CreateTable, GoodsTable(), {}, {}, 3010},
        {Kind::AlterColumn, {name, {}, {}}, {"RTE", FieldType::Currency}, {}, 3380},
        {Kind::AddColumn, {name, {}, {}}, {"Keiyaku", FieldType::Text, 30}, {}, 3380},
        {Kind::AlterColumn, {name, {}, {}}, {"Kana", FieldType::Text, 20}, {}, 3380},
        {Kind::CreateIndex, {name, {}, {}}, {}, {"Kana"}, 3075},
    };
    for (const Step& step : steps) {
        EXPECT_EQ(define(step.kind, step.table, step.column, step.indexed), 0);
        EXPECT_EQ(define(step.kind, step.table, step.column, step.indexed), step.secondError);
    }
    EXPECT_EQ(define(Kind::AlterColumn, {name, {}, {}}, {"Nix", FieldType::Long}), 3383);
    EXPECT_EQ(define(Kind::AddColumn, {"Nix", {}, {}}, {"A"}), 3371);
    EXPECT_EQ(column("Rte").type, FieldType::Currency);
    EXPECT_EQ(column("Kana").size, 20);
    EXPECT_EQ(goods()->columns.size(), GoodsTable().columns.size() + 1);
}

TEST_F(DefinitionTest, AlteringConvertsTheValuesAndKeepsTheRestAndItsIndexes) {
    MakeTable(*database_, GoodsTable());
    const TableDef name{"Goods", {}, {}};
    for (const int code : {3, 1})
        database_->Execute(
            QString("INSERT INTO Goods(Code,Kana,Rte,Tanka) VALUES(%1,'ｱｲｳｴｵ',%1*100,2.5)").arg(code));
    ASSERT_EQ(define(Kind::CreateIndex, name, {}, {"Kana"}), 0);
    ASSERT_EQ(define(Kind::AlterColumn, name, {"Rte", FieldType::Currency}), 0);
    EXPECT_EQ(value("Rte"), Variant(Currency(300)));
    ASSERT_EQ(define(Kind::AlterColumn, name, {"Tanka", FieldType::Integer}), 0);
    EXPECT_EQ(value("Tanka"), Variant(std::int16_t{2}));
    ASSERT_EQ(define(Kind::AlterColumn, name, {"Tanka", FieldType::Text, 4}), 0);
    EXPECT_EQ(value("Tanka"), Variant(u"2"));
    EXPECT_EQ(define(Kind::AlterColumn, name, {"Kana", FieldType::Text, 4}), 3163)
        << "what does not fit is not cut without a word";
    EXPECT_EQ(define(Kind::AlterColumn, name, {"Kana", FieldType::Long}), 3421);
    EXPECT_EQ(goods()->uniqueKeys, GoodsTable().uniqueKeys);
    EXPECT_TRUE(column("Flg").zeroDefault);
    EXPECT_EQ(define(Kind::CreateIndex, name, {}, {"Kana"}), 3075) << "it is there still";
}

}  // namespace
}  // namespace akarix
