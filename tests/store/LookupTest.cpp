#include "store/Lookup.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Consignor.h"
#include "support/CaseFile.h"
#include "support/ScratchStore.h"

namespace akarix {
namespace {

const char* const kDates = AKARIX_TEST_DATA "/dates.txt";

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
}

TEST_F(LookupTest, ReadsWhatIsThere) {
    ScratchStore::run(
        "INSERT INTO Rte(Code,Namae,Kensin) VALUES(3,'川西 ',22);\n"
        "INSERT INTO Rte(Code,Namae) VALUES(4,' ');\n"
        "INSERT INTO Deal(Code,Namae,NoSeikyu) VALUES(12,'佐藤　一郎',1)");
    EXPECT_EQ(GetName("Rte", "3"), "川西");
    EXPECT_EQ(GetName("Rte", std::int32_t{4}), QString()) << "a name of one blank is empty";
    EXPECT_EQ(GetKensinDay(std::int32_t{3}), Variant(std::int16_t{22}));
    EXPECT_EQ(GetKensinDay(std::int32_t{4}), Variant(std::int16_t{0})) << "Null reads as 0";
    const auto [name, flag] = GetNameAndNoSeikyu(std::int32_t{12});
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
        "INSERT INTO Dgd(Nendo,Getudo,Deal,Hi) VALUES(2011,3,1,25),(2011,2,2,30),(2010,12,3,24);\n");
    for (const auto& [cells, line] : ReadTable(kDates, "read")) {
        EXPECT_EQ(PrevReadingDate(cells[2].toInt(), {cells[0].toInt(), cells[1].toInt()}), cells.value(3))
            << line;
    }
}

TEST_F(LookupTest, BillingMonthOfADate) {
    ScratchStore::run(
        "INSERT INTO Deal(Code,Sime) VALUES(31,31),(30,30),(20,20),(100,0);\n"
        "INSERT INTO Deal(Code) VALUES(101);\n");
    for (const auto& [cells, line] : ReadTable(kDates, "billed")) {
        const auto [nendo, getudo] = DateToGetudo(cells[0].toInt(), CDate(cells[1]));
        EXPECT_EQ(QString("%1/%2").arg(nendo).arg(getudo), cells[2]) << line;
    }
}

TEST_F(LookupTest, Consignors) {
    ScratchStore::run(
        "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,BkName,Stn,StnName,Syurui,KozaNo) "
        "VALUES(152,'000015230 ','ﾐﾄﾞﾘ','FURI.TXT','ｷﾞﾝｺｳ',1,'ﾎﾝﾃﾝ','1','1023344');\n"
        "INSERT INTO Bnk(Code,BkName,Stn,Saifurikae,Keiyaku,Jimusyo) "
        "VALUES(9900,'ﾕｳｾｲ',990,'15','02','緑');\n");
    Consignor consignor = LoadBankConsignor(152);
    EXPECT_EQ(consignor.ItakuCode + consignor.Bnk + consignor.Stn, "0000152300152001");
    consignor = LoadPostConsignor();
    EXPECT_EQ(consignor.Bnk + consignor.ItakuCode, "9900");
    EXPECT_EQ(consignor.Saifurikae + consignor.Keiyaku + consignor.Jimusyo, "1502緑");
}

}  // namespace
}  // namespace akarix
