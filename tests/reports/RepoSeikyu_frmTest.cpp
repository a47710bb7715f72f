#include "reports/RepoSeikyu_frm.h"

#include "reports/BilledMonth.h"

namespace akarix {
namespace {

class BillingList : public BilledMonth {
 protected:
    void SetUp() override {
        BilledMonth::SetUp();
        OpenScreen<RepoSeikyu_frm>();
    }
    /// Walks through the fields from code "from" on; the walk ends on the button that shows the list.
    void showList(const QStringList& typed = {}) {
        clerk.find<TextBox>("ebox(2)").setFocus();
        for (int i = 0; i < 3; ++i)
            clerk.fill(typed.value(i));
        ASSERT_EQ(clerk.focusedName(), "Btn(1)");
        clerk.enter();
    }
    QStringList print(const QString& complaint = {}) { return BilledMonth::print("Btn(0)", complaint); }
};

TEST_F(BillingList, TheMonthInTheOrderOfTheRound) {
    EXPECT_EQ(beside({"ebox(0)", "ebox(1)"}), "2023/4");
    showList();
    EXPECT_EQ(shown(0, 12),
              (QStringList{"1|20|3|佐藤|-500|0.0|0.0|0.0|||||-500",
                           "1|30|2|鈴木|12,000|1,900.0|1,905.5|5.5|1,800|2,089|3,889|5,000|10,889",
                           "2|10|1|山田|0|100.5|112.8|12.3|4,827||4,827||4,827",
                           "|||合計|11,500|||17.8|6,627|2,089|8,716|5,000|15,216"}));
    clerk.find<TextBox>("ebox(1)").SetText("5");
    clerk.click("Btn(1)");
    EXPECT_EQ(shown(), QStringList()) << "a month without a ledger";
}

TEST_F(BillingList, Filters) {
    const struct {
        QStringList typed;  ///< from, to, route
        QStringList codes;
        QString names;
    } cases[] = {
        {{"", "", "1"}, {"3", "2", ""}, "//北町"}, {{"2"}, {"3", "2", ""}, "鈴木//"},
        {{"2", "2"}, {"2", ""}, "鈴木/鈴木/"},     {{"", "1"}, {"1", ""}, "/山田/"},
        {{"3", "9", "2"}, {}, "佐藤//"},
    };
    for (const auto& [typed, codes, names] : cases) {
        Form::Instance<RepoSeikyu_frm>().init();
        showList(typed);
        EXPECT_EQ(shown(2, 2), codes) << names.toStdString();
        EXPECT_EQ(beside({"sNamaeS", "sNamaeE", "sRte"}), names);
    }
}

TEST_F(BillingList, OnPaperPaymentsAreNotDeducted) {
    const QStringList pages = print();
    ASSERT_EQ(pages.size(), 1);
    for (const char* line :
         {"平成35年4月", "3佐藤0.00.00.0000-500-500", "2鈴木1,900.01,905.55.51,8002,0893,88912,00015,889",
          "1山田100.5112.812.34,82704,82704,827", "17.86,6272,0898,71611,50020,216"})
        EXPECT_TRUE(pages.at(0).contains(line)) << line << " in " << pages.at(0).toStdString();
    clerk.click("ChkGaku");
    const QString quantities = print().join("");
    EXPECT_TRUE(quantities.contains("1山田100.5112.812.3")) << quantities.toStdString();
    EXPECT_TRUE(quantities.contains("使用量計") && quantities.contains("17.8"));
    for (const char* amount : {"4,827", "使用料計", "請求額計", "20,216"})
        EXPECT_FALSE(quantities.contains(amount)) << amount;
}

TEST_F(BillingList, ThePageThatTheLastCustomerFillsCarriesTheTotal) {
    for (int code = 4; code <= 57; ++code)
        customer(QString("%1,'様',3,%1,0").arg(code), QString("%1,0,0,0,100,0").arg(code));
    QStringList pages = print();
    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(pages.at(0).contains("14,11611,50025,616")) << pages.at(0).toStdString();

    customer("58,'末尾',3,99,0", "58,0,0,0,1,0");
    pages = print();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_FALSE(pages.at(0).contains("25,61")) << "the total stands on the last page alone";
    EXPECT_TRUE(pages.at(1).contains("58末尾") && pages.at(1).contains("14,11711,50025,617"));
    EXPECT_FALSE(pages.at(1).contains("山田")) << "nothing is left of the page before";
}

TEST_F(BillingList, WhatComesToNothing) {
    AnswerEscape(clerk, "Printer_frm");
    clerk.click("Btn(0)");
    EXPECT_EQ(clerk.said().size(), 1) << "a cancelled print is not talked about";

    clerk.find<TextBox>("ebox(1)").SetText("5");
    QFile::rename("Prt/請求一覧表.xlsx", "Prt/gone.xlsx");
    EXPECT_EQ(print(), QStringList()) << "no rows: the template is not even looked for";

    clerk.find<TextBox>("ebox(1)").SetText("4");
    EXPECT_EQ(print("1004テンプレート 'Prt/請求一覧表.xlsx' が見つかりません。"), QStringList());
}

TEST_F(BillingList, TheGridGoesToAWorkbook) {
    showList({"2", "3", "1"});
    const Sheet sheet = exported("Btn(2)");
    EXPECT_EQ(sheet.shownText({2, 6}), "請求一覧");
    EXPECT_EQ(sheet.shownText({4, 1}), "2023/4分  ルート : 1 : 北町     2 : 鈴木 ～ 3 : 佐藤");
    EXPECT_EQ(sheet.cells.at({8, 13}).number, 10889);
}

}  // namespace
}  // namespace akarix
