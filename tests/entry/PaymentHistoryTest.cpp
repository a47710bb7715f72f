#include "entry/PaymentHistory.h"

#include "support/GridText.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

/// Three ledger months of customer 1 and the payments behind them; the closing day lies before the month's
/// end, so that payments of late March and late December count for the month after.
class PaymentHistory : public testing::Test {
 protected:
    void SetUp() override {
        ScratchStore::run(
            "INSERT INTO TtoD(Deal,Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,NGaku) "
            "VALUES(1,2022,12,500,4000,0,4500),(1,2023,4,0,5000,1200,600),(1,2023,3,0,1,2,3),(2,2023,4,9,9,9,"
            "9);\n"
            "INSERT INTO Dny(Dno,Eda,Hizuke,Deal,Nendo,Getudo,Gaku) "
            "VALUES(3,1,#2022/12/5#,1,2022,12,4500),(4,1,#2023/3/5#,1,2023,3,3),(5,1,#2023/3/"
            "25#,1,2023,4,100),"
            "(6,1,#2023/4/2#,1,2023,4,200),(6,2,#2023/4/2#,1,2023,4,300),(7,1,#2023/4/2#,2,2023,4,9);\n"
            "INSERT INTO TempTtoD(Nendo,Getudo,Eda,GGaku) VALUES(1999,1,1,1)");
    }
    QStringList shown() const { return GridRows(list); }

    ScratchStore store;
    FlexGrid list;
};

TEST_F(PaymentHistory, LedgerMonthsRunUpABalance) {
    ShowLedgerHistory(list, 1, {2022, 12});
    EXPECT_EQ(shown(), (QStringList{"繰越|||||500", "2022/12|500|4,000|0|4,500|0", "2023/3|0|1|2|3|0",
                                    "2023/4|0|5,000|1,200|600|5,600"}));
    ShowLedgerHistory(list, 1, {0, 0});
    EXPECT_EQ(shown().size(), 4) << "from no month on is from the beginning";
    EXPECT_EQ(shown().at(0), "繰越|||||0") << "there is no ledger month 0 to carry anything in";
    ShowLedgerHistory(list, 1, {2023, 5});
    EXPECT_EQ(shown(), QStringList());
    EXPECT_EQ(list.TextMatrix(0, 0) + list.TextMatrix(0, 5), "年月合計金額");
}

TEST_F(PaymentHistory, PaymentLinesStandUnderTheMonthOfTheirDate) {
    const QStringList wanted{"繰越|||||500", "2022|12|||4,000|0", "||||0|4,500", "2023|3|||3|0", "||||0|3",
                             "||||0|100",  // dated in March, booked to April
                             "||||6,200|0",  "||||0|200",         "||||0|300"};
    for (int time = 0; time < 2; ++time) {
        ShowPaymentHistory(list, 1, {2022, 12});
        EXPECT_EQ(shown(), wanted) << "what an earlier showing gathered is gone";
    }
    ShowPaymentHistory(list, 1, {2023, 4});
    EXPECT_EQ(shown(),
              (QStringList{"繰越|||||0", "2023|3|||0|100", "||||6,200|0", "||||0|200", "||||0|300"}));
    EXPECT_EQ(
        ScratchStore::rows("SELECT Dno,Nendo,Getudo,Hi,Eda,NGaku FROM TempTtoD WHERE Dno>0 ORDER BY Dno,Eda"),
        (QStringList{"5|2023|3|25|1|100", "6|2023|4|2|1|200", "6|2023|4|2|2|300"}));
}

}  // namespace
}  // namespace akarix
