#include "reports/SeikyuPrt_frm.h"

#include "reports/BilledMonth.h"
#include "toolkit/FieldWalk.h"

namespace akarix {
namespace {

/// Two further customers: one who gets no invoice and has no reading, one with nothing to bill.
class InvoiceIssue : public BilledMonth {
 protected:
    void SetUp() override {
        BilledMonth::SetUp();
        gInvoiceMode = 1;
        gDb->Execute("INSERT INTO Dgd(Nendo,Getudo,Hi,Deal,ZenkaiMeter,KonkaiMeter) VALUES(2023,4,20,3,5,5)");
        customer("4,'田中',1,40,1", "4,0,900,0,900,0");
        customer("5,'高橋',2,20,0", "5,700,0,0,0,700", "5,9,9,0");
        OpenScreen<SeikyuPrt_frm>();
    }
    void TearDown() override {
        gInvoiceMode = 0;
        BilledMonth::TearDown();
    }

    /// Route, first and last code; the last one builds the list, so the route is typed before.
    void showList(const QStringList& typed = {}) {
        clerk.find<TextBox>("ebox(5)").setFocus();
        clerk.fill(typed.value(0));
        ASSERT_EQ(clerk.focusedName(), "Btn");
        FocusSelect(clerk.find<TextBox>("ebox(3)"));
        clerk.fill(typed.value(1));
        clerk.fill(typed.value(2));
        ASSERT_EQ(clerk.focusedName(), "ebox(5)");
    }
    FlexGrid& list() const { return clerk.find<FlexGrid>("List"); }
    QString marks() const {
        QString all;
        for (const QString& mark : shown(0, 0))
            all += mark.isEmpty() ? "-" : mark;
        return all;
    }
    /// The names on the pages that the print button leaves.
    QStringList print(const QString& complaint = {}) {
        QStringList names;
        for (const QString& page : BilledMonth::print("Btn", complaint))
            names += page.section("様", 0, 0).section("）", -1);
        return names;
    }
};

TEST_F(InvoiceIssue, TheMonthInTheOrderOfTheRound) {
    EXPECT_EQ(beside({"ebox(0)", "ebox(1)", "ebox(2)"}), "2023/4/2023/04/15");
    showList();
    EXPECT_EQ(shown(0, 11), (QStringList{"○|3|佐藤|-500|0|5.0|5.0|0.0|0|0|0|-500",
                                         "○|2|鈴木|12,000|5,000|1,900.0|1,905.5|5.5|1,800|2,089|3,889|10,889",
                                         "|4|田中|0|0|0.0|0.0|0.0|900|0|900|900",
                                         "○|1|山田|0|0|100.5|112.8|12.3|4,827|0|4,827|4,827",
                                         "|5|高橋|700|700|9.0|9.0|0.0|0|0|0|0",
                                         "||合計|12,200|5,700|||18|7,527|2,089|9,616|16,116"}));
}

TEST_F(InvoiceIssue, OnlyTheLastCodeBuildsTheList) {
    const struct {
        QStringList typed;  ///< route, from, to
        QStringList codes;
        QString names;
    } cases[] = {
        {{"1"}, {"3", "2", "4", ""}, "北町//"}, {{"", "2"}, {"3", "2", "4", "5", ""}, "/鈴木/"},
        {{"", "", "1"}, {"1", ""}, "//山田"},   {{"2", "1", "4"}, {"1", ""}, "/山田/田中"},
        {{"9", "1", "4"}, {}, "/山田/田中"},
    };
    for (const auto& [typed, codes, names] : cases) {
        Form::Instance<SeikyuPrt_frm>().init();
        showList(typed);
        EXPECT_EQ(shown(1, 1), codes) << names.toStdString();
        EXPECT_EQ(beside({"sRte", "sNamaeS", "sNamaeE"}), names);
    }
    showList();
    const QStringList before = shown();
    clerk.find<TextBox>("ebox(1)").setFocus();
    for (const char* typed : {"5", "2023.4.1", "1"})
        clerk.fill(typed);
    EXPECT_EQ(clerk.text("ebox(2)"), "") << "a date of issue has two strokes";
    EXPECT_EQ(clerk.focusedName(), "ebox(4)");
    EXPECT_EQ(shown(), before) << "month, date and the first code wait for the last";
    clerk.enter();
    EXPECT_EQ(shown(), QStringList()) << "a month without a ledger";
}

TEST_F(InvoiceIssue, Marks) {
    showList();
    EXPECT_EQ(marks(), "○○-○--");
    for (const auto& [row, column] : {std::pair{1, 0}, {3, 0}, {6, 0}, {2, 2}})
        clerk.clickCell(list(), row, column);
    EXPECT_EQ(marks(), "-○○○--") << "a click turns a customer's mark, not the totals' row";
    clerk.clickCell(list(), 0, 0);
    EXPECT_EQ(marks(), "-○○○--");
    clerk.click("Command1");
    EXPECT_EQ(marks(), "○○○○○○");
    clerk.click("DelBtn");
    EXPECT_EQ(marks(), "------");

    Form::Instance<SeikyuPrt_frm>().init();
    for (const char* button : {"Command1", "DelBtn", "ExcelBtn"})
        clerk.click(button);
    EXPECT_EQ(print(), QStringList()) << "an empty list";
}

TEST_F(InvoiceIssue, TheMarkDecidesWhoGetsASheet) {
    showList();
    EXPECT_EQ(print(), (QStringList{"佐藤", "鈴木", "山田"}));
    clerk.click("DelBtn");
    EXPECT_EQ(print(), QStringList());
    clerk.clickCell(list(), 5, 0);
    EXPECT_EQ(print(), QStringList{"高橋"}) << "nothing to bill, marked by hand";
    QFile::remove("Prt/請求書.xlsx");
    EXPECT_EQ(print("1004テンプレート 'Prt/請求書.xlsx' が見つかりません。"), QStringList());
}

TEST_F(InvoiceIssue, AShownRunIsStoppedAtAnyPage) {
    gPrintPreview = true;
    showList();
    for (int run = 0; run < 2; ++run) {
        AnswerPrinter(clerk, store.path("out.pdf"));
        for (const char* place : {"1 頁（1 / 3 件目）", "2 頁（2 / 3 件目）"}) {
            clerk.expect("Preview_frm", [this, place](QWidget&) {
                EXPECT_EQ(clerk.text("Place"), place);
                clerk.click(*place == '1' ? "Close" : "Stop");
            });
        }
        clerk.click("Btn");
        EXPECT_EQ(clerk.expectedDialogs(), 0);
        EXPECT_EQ(list().TextMatrix(list().Row(), 2), "鈴木");
    }
    gPrintPreview = false;
    EXPECT_EQ(print().size(), 3) << "nothing of it is left for the next run";
}

TEST_F(InvoiceIssue, ARunThatBreaksOffShowsWhere) {
    showList();
    clerk.click("Command1");
    EXPECT_EQ(print("13型が一致しません。"), (QStringList{"佐藤", "鈴木"}))
        << "what was printed stays printed";
    EXPECT_EQ(list().TextMatrix(list().Row(), 2), "田中") << "the customer who was not read";
    clerk.clickCell(list(), 3, 0);
    EXPECT_EQ(print().size(), 4) << "without him the run goes through";
}

TEST_F(InvoiceIssue, DrawnInvoicesGoByCodesAlone) {
    showList();
    gInvoiceMode = 2;
    EXPECT_EQ(print(), QStringList()) << "no way of issuing";
    gInvoiceMode = 0;
    EXPECT_EQ(print(), QStringList()) << "no codes: only a customer 0";
    showList({"", "4", "4"});
    EXPECT_EQ(print(), QStringList()) << "gets no invoice";
    showList({"9", "1", "4"});
    ASSERT_EQ(shown(), QStringList());
    EXPECT_EQ(print("3420"), QStringList());
}

TEST_F(InvoiceIssue, TheGridGoesToAWorkbook) {
    showList({"1", "2", "3"});
    const Sheet sheet = exported("ExcelBtn");
    EXPECT_EQ(sheet.shownText({2, 6}), "請求書一覧");
    EXPECT_EQ(sheet.shownText({4, 1}), "2023/4分 ルート : 1 : 北町     2 : 鈴木 ～3 : 佐藤");
    EXPECT_EQ(sheet.cells.at({8, 12}).number, 10889);
}

}  // namespace
}  // namespace akarix
