#include "entry/PaymentLedger.h"

#include <initializer_list>

#include "billing/Tto.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/RuntimeError.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// Customer 1 closes at the month's end, customer 2 on the 20th, customer 3 never has a closing day.
class PaymentLedger : public testing::Test {
 protected:
    void SetUp() override {
        ScratchStore::run(
            "INSERT INTO Deal(Code,Namae,Sime) VALUES(1,'山田',31),(2,'鈴木',20),(3,'佐藤',0);\n");
    }

    /// Saves a slip with these amounts from the first line on.
    static void pay(std::int32_t dno, std::int32_t deal, Date hizuke, std::initializer_list<int> amounts) {
        PaymentSlip slip{dno, deal, hizuke, {}};
        std::size_t line = 0;
        for (const int amount : amounts)
            slip.lines[line++].Gaku = amount;
        SavePayment(slip);
    }
    static QStringList lines() {
        return ScratchStore::rows("SELECT Dno,Eda,Deal,Nendo,Getudo,Gaku FROM Dny ORDER BY Dno,Eda");
    }
    static QStringList ledger() {
        return ScratchStore::rows(
            "SELECT Deal,Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg FROM TtoD "
            "ORDER BY Deal,Nendo,Getudo");
    }

    ScratchStore store;
};

TEST_F(PaymentLedger, ATextIsCutToItsColumn) {
    PaymentSlip slip{7, 1, DateSerial(2023, 4, 15), {}};
    slip.lines[4] = {0, 50, QString(21, u'あ')};
    SavePayment(slip);
    EXPECT_EQ(ScratchStore::rows("SELECT Eda,Naiyo FROM Dny"), QStringList("5|" + QString(20, u'あ')));
}

TEST_F(PaymentLedger, AKnownMonthChangesInItsPaymentsAlone) {
    ScratchStore::run(
        "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg) "
        "VALUES(1,2023,4,500,3000,200,3200,77,1)");
    pay(1, 1, DateSerial(2023, 4, 3), {1000, 0, 500});
    pay(2, 1, DateSerial(2023, 4, 30), {20});
    EXPECT_EQ(ledger(), QStringList("1|2023|4|500|3000|200|3200|1520|1"));
    pay(1, 1, DateSerial(2023, 4, 3), {300});
    EXPECT_EQ(lines(), (QStringList{"1|1|1|2023|4|300", "2|1|1|2023|4|20"})) << "the old lines are gone";
    EXPECT_EQ(ledger(), QStringList("1|2023|4|500|3000|200|3200|320|1"));
    pay(1, 1, DateSerial(2023, 4, 3), {});
    EXPECT_EQ(ledger(), QStringList("1|2023|4|500|3000|200|3200|20|1")) << "what is left";
}

TEST_F(PaymentLedger, ASlipThatMovesLeavesTheSumOfItsOldMonth) {
    pay(1, 1, DateSerial(2023, 4, 3), {1000});
    pay(1, 1, DateSerial(2023, 5, 3), {1000});
    EXPECT_EQ(lines(), QStringList("1|1|1|2023|5|1000"));
    EXPECT_EQ(ledger(), (QStringList{"1|2023|4|0|0|0|0|1000|0", "1|2023|5|-1000|0|0|0|1000|0"}));
    BuildMonthLedger({2023, 4}, DateSerial(2023, 5, 1));
    EXPECT_EQ(ledger().at(0), "1|2023|4|0|0|0|0|1000|0") << "a run writes no payments where there are none";
    pay(2, 1, DateSerial(2023, 4, 9), {20});
    EXPECT_EQ(ledger().at(0), "1|2023|4|0|0|0|0|20|0");
}

TEST_F(PaymentLedger, ANumberAnotherCustomerHasIsRefusedAndLeavesHisSlipAlone) {
    pay(1, 1, DateSerial(2023, 4, 3), {0, 1000});
    try {
        pay(1, 2, DateSerial(2023, 4, 3), {5, 6});
        ADD_FAILURE() << "saved over another customer's slip";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 3022);
    }
    EXPECT_EQ(lines(), (QStringList{"1|1|2|2023|4|5", "1|2|1|2023|4|1000"})) << "what came before stands";
    EXPECT_EQ(ledger(), QStringList("1|2023|4|0|0|0|0|1000|0"));
    pay(1, 2, DateSerial(2023, 4, 3), {7});
    EXPECT_EQ(ledger().at(1), "2|2023|4|0|0|0|0|7|0") << "saving again mends the ledger";
}

TEST_F(PaymentLedger, DeletingTakesEveryLineUnderTheNumber) {
    pay(1, 1, DateSerial(2023, 4, 3), {1000, 200});
    pay(2, 1, DateSerial(2023, 4, 4), {30});
    ScratchStore::run("INSERT INTO Dny(Dno,Eda,Deal,Nendo,Getudo,Gaku) VALUES(1,5,2,2023,4,1)");
    DeletePayment(1, 1, DateSerial(2023, 4, 20));
    EXPECT_EQ(lines(), QStringList("2|1|1|2023|4|30"));
    EXPECT_EQ(ledger(), QStringList("1|2023|4|0|0|0|0|30|0"));
    DeletePayment(2, 1, DateSerial(2023, 5, 4));
    EXPECT_EQ(lines(), QStringList());
    EXPECT_EQ(ledger(), QStringList("1|2023|4|0|0|0|0|30|0")) << "the month of the date given is mended";
}

}  // namespace
}  // namespace akarix
