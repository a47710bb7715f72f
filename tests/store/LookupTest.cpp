#include "store/Lookup.h"

#include "platform/runtime/DateSerial.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Consignor.h"
#include "support/ScratchStore.h"

namespace akarix {
namespace {

class LookupTest : public testing::Test {
 protected:
    ScratchStore store;
};

TEST_F(LookupTest, AMissingRowGivesItsDefault) {
    const Variant nobody(std::int32_t{999});
    EXPECT_EQ(GetName("Rte", nobody), " ");
    EXPECT_EQ(GetDealName(nobody), " ");
    EXPECT_EQ(GetHinTanka(nobody), Currency(0));
    EXPECT_EQ(GetKensinDay(nobody), Variant(std::int16_t{0}));
    EXPECT_EQ(GetContents("SELECT * FROM zSysFunc WHERE Code=77"), QString());
    EXPECT_EQ(AddressOfZip("999-0000"), QString());
    QString name = "x";
    int flag = 7;
    GetNameAndNoSeikyu("Deal", nobody, name, flag);
    EXPECT_EQ(name, " ");
    EXPECT_EQ(flag, 0);
}

TEST_F(LookupTest, ReadsWhatIsThere) {
    ScratchStore::run(
        "INSERT INTO Rte(Code,Namae,Kensin) VALUES(3,'川西 ',22);\n"
        "INSERT INTO Rte(Code,Namae) VALUES(4,' ');\n"
        "INSERT INTO Deal(Code,Namae,NoSeikyu) VALUES(12,'佐藤　一郎',1);\n"
        "INSERT INTO Hin(Code,Namae,Tanka) VALUES(1,'ホース',580.5);\n"
        "INSERT INTO Zip7(Code,Addr) VALUES(9999901,'緑川市本町');\n");
    EXPECT_EQ(GetName("Rte", "3"), "川西");
    EXPECT_EQ(GetName("Rte", std::int32_t{4}), QString()) << "a name of one blank is empty";
    EXPECT_EQ(GetDealName(std::int32_t{12}), "佐藤　一郎");
    EXPECT_EQ(GetHinTanka(std::int32_t{1}), Currency::FromText("580.5"));
    EXPECT_EQ(GetKensinDay(std::int32_t{3}), Variant(std::int16_t{22}));
    EXPECT_EQ(GetKensinDay(std::int32_t{4}), Variant(std::int16_t{0})) << "Null reads as 0";
    EXPECT_EQ(AddressOfZip("999-9901"), "緑川市本町");
    EXPECT_EQ(GetContents("SELECT Contents FROM zSysFunc WHERE Code=1"), "31");
    QString name;
    int flag = 0;
    GetNameAndNoSeikyu("Deal", std::int32_t{12}, name, flag);
    EXPECT_EQ(name, "佐藤　一郎");
    EXPECT_EQ(flag, 1);
}

TEST_F(LookupTest, NextNumbers) {
    EXPECT_EQ(NextCode("Hin"), 1);
    EXPECT_EQ(NextHaisou(), 10);
    ScratchStore::run(
        "INSERT INTO Deal(Code,Haisou) VALUES(40,55);\n"
        "INSERT INTO Rte(Code) VALUES(32767);\n"
        "INSERT INTO Hin(Code) VALUES(2147483647);\n");
    EXPECT_EQ(NextCode("Deal"), 41);
    EXPECT_EQ(NextHaisou(), 65);
    EXPECT_EQ(NextCode("Rte"), 32768);
    EXPECT_THROW(NextCode("Hin"), RuntimeError);
}

TEST_F(LookupTest, DayOfAnEarlierReading) {
    ScratchStore::run(
        "INSERT INTO Dgd(Nendo,Getudo,Deal,Hi) VALUES(2011,3,1,25);\n"
        "INSERT INTO Dgd(Nendo,Getudo,Deal,Hi) VALUES(2011,2,2,30);\n"
        "INSERT INTO Dgd(Nendo,Getudo,Deal,Hi) VALUES(2010,12,3,24);\n");
    struct Case {
        int year, month;
        std::int32_t deal;
        const char16_t* day;
    };
    const Case cases[] = {
        {2011, 4, 1, u"2011/3/25"},  {2011, 3, 1, u""},  // its first reading is this month's
        {2011, 4, 2, u""},                               // there is no 30th of February
        {2011, 1, 3, u"2010/12/24"}, {2011, 1, 9, u""},
    };
    for (const Case& c : cases) {
        QString text = "before";
        PrevReadingDate(c.year, c.month, c.deal, text);
        EXPECT_EQ(text, QString::fromUtf16(c.day)) << c.deal;
    }
}

TEST_F(LookupTest, BillingMonthOfADate) {
    ScratchStore::run(
        "INSERT INTO Deal(Code,Sime) VALUES(31,31);\n"
        "INSERT INTO Deal(Code,Sime) VALUES(30,30);\n"
        "INSERT INTO Deal(Code,Sime) VALUES(20,20);\n"
        "INSERT INTO Deal(Code,Sime) VALUES(100,0);\n"
        "INSERT INTO Deal(Code) VALUES(101);\n");
    struct Case {
        std::int32_t deal;
        int year, month, day;
        int nendo, getudo;
    };
    const Case cases[] = {
        {31, 2011, 3, 31, 2011, 3}, {30, 2011, 3, 31, 2011, 4},  {20, 2011, 3, 20, 2011, 3},
        {20, 2011, 3, 21, 2011, 4}, {20, 2010, 12, 31, 2011, 1}, {999, 2011, 12, 31, 2011, 12},
        {100, 2011, 5, 1, 2011, 6}, {101, 2011, 12, 1, 2012, 1},
    };
    for (const Case& c : cases) {
        int nendo = 0;
        int getudo = 0;
        DateToGetudo(c.deal, DateSerial(c.year, c.month, c.day), nendo, getudo);
        EXPECT_EQ(nendo * 100 + getudo, c.nendo * 100 + c.getudo)
            << c.deal << " on " << c.month << "/" << c.day;
    }
}

TEST_F(LookupTest, Consignors) {
    ScratchStore::run(
        "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,BkName,Stn,StnName,Syurui,KozaNo) "
        "VALUES(152,'000015230 ','ﾐﾄﾞﾘ','FURI.TXT','ｷﾞﾝｺｳ',1,'ﾎﾝﾃﾝ','1','1023344');\n"
        "INSERT INTO Bnk(Code,BkName,Stn,Saifurikae,Keiyaku,Jimusyo) "
        "VALUES(9900,'ﾕｳｾｲ',990,'15','02','緑');\n");
    Consignor consignor;
    consignor.Saifurikae = "kept";
    LoadBankConsignor(152, consignor);
    EXPECT_EQ(consignor.ItakuCode, "000015230");
    EXPECT_EQ(consignor.Bnk, "0152");
    EXPECT_EQ(consignor.Stn, "001");
    EXPECT_EQ(consignor.KozaNo, "1023344");
    EXPECT_EQ(consignor.Saifurikae, "kept");
    LoadBankConsignor(153, consignor);
    EXPECT_EQ(consignor.BkName, "ｷﾞﾝｺｳ") << "a missing row changes nothing";
    LoadPostConsignor(consignor);
    EXPECT_EQ(consignor.Bnk, "9900");
    EXPECT_EQ(consignor.ItakuCode, QString());
    EXPECT_EQ(consignor.Saifurikae + consignor.Keiyaku + consignor.Jimusyo, "1502緑");
}

}  // namespace
}  // namespace akarix
