#include "entry/SlipG_frm.h"
#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Calendar.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"

namespace akarix {
namespace {

enum { KonkaiMeter = 5 };

/// The meter readings of more customers than a window or a grid holds; today is 15 April 2023.
class ReadingSheet : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2023, 4, 15));
        OpenScreen<SlipG_frm>();
    }
    /// Customers 1, 2, 3, ..., a power of two of them.
    static void addCustomers(int count) {
        gDb->Execute("INSERT INTO Deal(Code,Rte) VALUES(1,1)");
        for (int rows = 1; rows < count; rows *= 2)
            gDb->Execute(QString("INSERT INTO Deal(Code,Rte) SELECT Code+%1,1 FROM Deal").arg(rows));
    }
    FlexGrid& list() const { return clerk.find<FlexGrid>("SlipG_frm/List"); }

    ScratchStore store;
};

TEST_F(ReadingSheet, TheEditorFollowsTheRowsOutOfTheWindow) {
    addCustomers(64);
    clerk.click("Command1");
    for (int code = 1; code < 50; ++code)
        clerk.fill(QString::number(code));
    EXPECT_EQ(list().Row(), 50);
    const QRect cell = list().CellRect();
    EXPECT_GT(list().rowAt(0), 20);
    EXPECT_EQ(clerk.control("tBox").geometry(), cell.translated(list().pos()));
    list().scrollToTop();
    EXPECT_FALSE(clerk.control("tBox").isVisible()) << "no box floats over somebody else's row";
    EXPECT_EQ(list().TextMatrix(49, KonkaiMeter), "49");
}

TEST_F(ReadingSheet, MoreRowsThanASheetHoldsAreTheRunTimesError) {
    addCustomers(32768);
    gDb->Execute("INSERT INTO Dgd(Nendo,Getudo,Deal,KonkaiMeter) SELECT 2023,4,Code,5 FROM Deal");
    clerk.answerMsgBox();
    clerk.click("Command1");
    EXPECT_TRUE(clerk.lastSaid().startsWith("実行時エラー '6'"));
    EXPECT_EQ(list().Rows(), 1);
    EXPECT_EQ(clerk.focusedName(), "Command1");
    EXPECT_EQ(ScratchStore::rows("SELECT COUNT(*),SUM(KonkaiMeter) FROM Dgd"), QStringList{"32768|163840"});
}

}  // namespace
}  // namespace akarix
