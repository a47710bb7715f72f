#include "platform/dao/StoreFixture.h"
#include "platform/runtime/Action.h"

namespace akarix {
namespace {

class RecordsetTest : public StoreTest {
 protected:
    void SetUp() override {
        database_ = &create();
        MakeTable(*database_, GoodsTable());
        const Action filling;
        for (int code = 1; code <= 3; ++code)
            database_->Execute(QString("INSERT INTO Goods(Code,Kana) VALUES(%1,'ｱ%1')").arg(code));
    }
    Recordset rows(const QString& condition = QString()) {
        return database_->OpenRecordset("SELECT * FROM Goods" + condition);
    }
    static void add(Recordset& set, int code) {
        set.AddNew();
        set.Fields("Code") = std::int32_t{code};
        set.Update();
    }
    static int code(const Recordset& set) { return set["code"].As<std::int32_t>(); }

    Database* database_ = nullptr;
};

TEST_F(RecordsetTest, MovesAndCounts) {
    Recordset set = rows();
    EXPECT_EQ(set.RecordCount(), 1);
    set.MoveLast();
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_EQ(code(set), 3);
    set.MoveNext();
    EXPECT_TRUE(set.Eof());
    EXPECT_EQ(ErrorOf([&] { set["Code"]; }), 3021);
    EXPECT_EQ(ErrorOf([&] { set.MoveNext(); }), 3021);
    set.MovePrevious();
    EXPECT_EQ(code(set), 3);
    set.MoveFirst();
    set.MovePrevious();
    EXPECT_TRUE(set.Bof());
    EXPECT_EQ(ErrorOf([&] { set.MovePrevious(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { set.Fields("Nix"); }), 3265);
    EXPECT_EQ(ErrorOf([&] { set.Fields(6); }), 3265);
}

TEST_F(RecordsetTest, AnEmptySetHasNoRow) {
    Recordset set = rows(" WHERE Code=99");
    EXPECT_TRUE(set.Eof() && set.Bof());
    EXPECT_EQ(set.RecordCount(), 0);
    EXPECT_EQ(ErrorOf([&] { set.MoveFirst(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { set.MoveLast(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { set.Edit(); }), 3021);
    set.FindFirst("Code=1");
    EXPECT_TRUE(set.NoMatch());
}

TEST_F(RecordsetTest, FindsAndStaysWhereNothingIsFound) {
    Recordset set = rows();
    for (const int sought : {2, 9}) {
        set.FindFirst(QString("Code=%1").arg(sought));
        EXPECT_EQ(set.NoMatch(), sought == 9);
        EXPECT_EQ(code(set), 2);
    }
}

TEST_F(RecordsetTest, KeepsItsRowsWhateverHappensBehind) {
    Recordset set = rows();
    EXPECT_EQ(set.RecordCount(), 1);
    database_->Execute("DELETE * FROM Goods");
    set.MoveLast();
    EXPECT_EQ(set.RecordCount(), 3);
    set.Edit();
    set.Fields("Rte") = std::int16_t{1};
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), 3167);
}

TEST_F(RecordsetTest, AddsBehindTheRowsAndKeepsItsPlace) {
    Recordset set = rows(" WHERE Code>1");
    EXPECT_EQ(code(set), 2);
    set.AddNew();
    EXPECT_TRUE(set["Kana"].IsNull());
    EXPECT_EQ(set["Flg"], Variant(std::int16_t{0}));
    set.Fields("Code") = std::int32_t{9};
    set.Fields("Kana") = u"ｶ";
    EXPECT_EQ(code(set), 9);
    set.Update();
    EXPECT_EQ(code(set), 2);
    set.MoveLast();
    EXPECT_EQ(code(set), 9);
    EXPECT_EQ(set.RecordCount(), 3);

    Recordset unread = rows(" WHERE Code>1");
    add(unread, 0);
    EXPECT_EQ(code(unread), 2);
    unread.MoveLast();
    EXPECT_EQ(code(unread), 0) << "it belongs to the set, whatever the condition";
    EXPECT_EQ(unread.RecordCount(), 4);

    Recordset fitting = rows(" WHERE Code<3 AND Code>0");
    EXPECT_EQ(ErrorOf([&] { add(fitting, 1); }), 3022);
    database_->Execute("DELETE * FROM Goods WHERE Code=1");
    fitting.Update();
    EXPECT_EQ(code(fitting), 2) << "the added row stands behind those read, and once";
    fitting.MoveLast();
    EXPECT_EQ(code(fitting), 1);
    EXPECT_EQ(fitting.RecordCount(), 2);

    Recordset empty = rows(" WHERE Code=99");
    EXPECT_TRUE(empty.Eof());
    add(empty, 100);
    EXPECT_TRUE(empty.Eof());
    empty.MoveFirst();
    EXPECT_EQ(code(empty), 100);
}

TEST_F(RecordsetTest, EditsThePresentRow) {
    Recordset set = rows();
    set.MoveNext();
    set.Edit();
    set.Fields("Tanka") = Currency::FromText("12.5");
    set.Fields("Hizuke") = Date(36526);
    EXPECT_EQ(set["Tanka"], Variant(Currency::FromText("12.5")));
    set.Edit();
    EXPECT_TRUE(set["Tanka"].IsNull());
    set.Fields("Tanka") = std::int32_t{7};
    set.MoveNext();
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), 3020) << "moving gives an edit up";
    set.MovePrevious();
    EXPECT_TRUE(set["Tanka"].IsNull());
    set.Edit();
    set.Fields("Hizuke") = u"2000/1/1";
    set.Update();
    EXPECT_EQ(set["Hizuke"], Variant(Date(36526)));
    EXPECT_EQ(rows(" WHERE Code=2")["Hizuke"], Variant(Date(36526)));
}

TEST_F(RecordsetTest, RefusesByNumber) {
    Recordset set = rows();
    const auto put = [&](const char16_t* column, const Variant& value) {
        return ErrorOf([&] { set.Fields(QString::fromUtf16(column)) = value; });
    };
    EXPECT_EQ(put(u"Code", std::int32_t{5}), 3020);
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), 3020);

    set.AddNew();
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), 3314);
    const std::tuple<const char16_t*, Variant, int> cases[] = {
        {u"Code", u"x", 3421},
        {u"Code", 3e9, 3421},
        {u"Code", 2.5, 0},
        {u"Rte", std::int32_t{32768}, 3421},
        {u"Rte", std::int32_t{-32768}, 0},
        {u"Rte", Variant::Null(), 0},
        {u"Tanka", u"1,234.5", 0},
        {u"Kana", u"", 3315},
        {u"Kana", u"ｱｲｳｴｵｶｷｸｹｺｻ", 3163},
        {u"Kana", std::int32_t{123}, 0},
        {u"Hizuke", u"13/13/13", 3421},
    };
    for (const auto& [column, value, error] : cases)
        EXPECT_EQ(put(column, value), error) << QString::fromUtf16(column).toStdString();
    EXPECT_EQ(code(set), 2) << "half to even; a refused value changes nothing";
    EXPECT_EQ(set["Kana"], Variant(u"123"));
    try {
        set.Update();
        ADD_FAILURE() << "two rows under one key";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 3022);
        EXPECT_TRUE(error.description().endsWith("変更を行えませんでした。 (Goods.Code)"))
            << "no word of the engine's own language";
    }
    EXPECT_EQ(put(u"Code", std::int32_t{5}), 0) << "a broken key can be mended";
    set.Update();

    set.MoveFirst();
    set.Edit();
    EXPECT_EQ(put(u"Code", std::int32_t{5}), 0);
    EXPECT_EQ(ErrorOf([&] { set.Update(); }), 3022);
    set.MoveFirst();
    EXPECT_EQ(code(set), 1);

    Recordset sums = database_->OpenRecordset("SELECT COUNT(Code) AS Kensu FROM Goods");
    EXPECT_EQ(ErrorOf([&] { sums.AddNew(); }), 3027);

    set.Close();
    EXPECT_EQ(ErrorOf([&] { set.Close(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { set.MoveFirst(); }), 3420);
    EXPECT_EQ(ErrorOf([&] { database_->Execute("SELECT * FROM Goods"); }), 3065);
}

TEST_F(RecordsetTest, ReadsAndWritesWhenItsPlanIsForgotten) {
    Recordset unread = rows(" WHERE Code=2");
    Recordset edited = rows(" WHERE Code=3");
    edited.Edit();
    edited.Fields("Rte") = std::int16_t{5};
    const auto open = [&](int form) {
        return database_->OpenRecordset(QString("SELECT Code+%1 AS v%1 FROM Goods WHERE Code=1").arg(form));
    };
    const auto ask = [&](int form) {
        EXPECT_EQ(open(form)[QString("v%1").arg(form)], Variant(std::int32_t{form + 1}));
    };
    // More forms than are kept: translated alone, and read.
    for (int form = 0; form < 900; ++form)
        open(form);
    for (int form = 900; form-- > 0;)
        ask(form);
    // One that always comes behind another, between new ones: its place is given up, and it is asked for
    // again.
    for (int form = 1000; form < 1600; ++form) {
        open(form);
        ask(1);
        ask(2);
    }
    EXPECT_EQ(code(unread), 2);
    edited.Update();
    EXPECT_EQ(rows(" WHERE Rte=5")["Code"], Variant(std::int32_t{3}));
}

TEST_F(RecordsetTest, FieldsFollowTheirSet) {
    Recordset first = rows();
    const Field& field = first.Fields("KANA");
    const Recordset moved = std::move(first);
    EXPECT_EQ(field.Value(), Variant(u"ｱ1"));
}

}  // namespace
}  // namespace akarix
