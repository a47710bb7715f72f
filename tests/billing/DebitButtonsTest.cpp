#include "billing/Seikyu_frm.h"

#include "platform/print/PdfText.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Files.h"
#include "store/Settings.h"
#include "support/ListScreen.h"
#include "support/ScratchStore.h"
#include "support/ScreenTest.h"
#include "values/Dates.h"

namespace akarix {
namespace {

/// The disk and statement buttons on 27 January 2006, with one customer of the post office who owes 1,000
/// yen.
class DebitButtonsTest : public ScreenTest {
 protected:
    void SetUp() override {
        SetClock(DateSerial(2006, 1, 27));
        QDir().mkpath("Drive/A");
        ScratchStore::run(
            "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,Stn,Saifurikae) VALUES(9900,'1','ｱ','f',1,'20');\n"
            "INSERT INTO Bnk(Code,ItakuCode,Itakusya,fName,Stn) VALUES(123,'1','ｱ','b',1);\n"
            "INSERT INTO Deal(Code,Bnk,Stn,Kind,Koza) VALUES(1,9900,10010,1,'1');\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,Gaku) VALUES(1,2006,1,1000),(1,2006,2,2000);\n");
        OpenScreen<Seikyu_frm>();
    }
    void TearDown() override {
        Close(1);
        ScreenTest::TearDown();
    }

    void type(const char* box, const QString& text) {
        auto& field = clerk.find<TextBox>(box);
        field.setFocus();
        field.selectAll();
        clerk.fill(text);
    }
    bool isPrompted() const { return clerk.control("eSaihi").isVisible(); }
    /// Lays the answers to a whole run ready; `asked` when the second date is asked back.
    void expectRun(bool asked) {
        clerk.answerConfirm(true);
        if (asked) clerk.answerConfirm(true);
        AnswerEscape(clerk, "Printer_frm");
        clerk.answerAlert();
        clerk.answerAlert();
    }
    /// Month and day of the debit, and of the second try, in the file's header.
    static QString datesInFile() {
        QFile file("Drive/A/f");
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        const QByteArray bytes = file.readAll();
        return bytes.mid(54, 4) + "|" + bytes.mid(103, 4);
    }

    ScratchStore store;
};

TEST_F(DebitButtonsTest, TheSecondDateIsProposedAndEntered) {
    clerk.click("Command(2)");
    EXPECT_TRUE(isPrompted() && clerk.control("Label1").isVisible() && clerk.control("Label(6)").isVisible());
    EXPECT_EQ(clerk.text("eSaihi") + clerk.text("lyobi2"), "2006/02/20月曜");
    EXPECT_EQ(clerk.focusedName(), "eSaihi");
    EXPECT_FALSE(QFile::exists("Drive/A/f")) << "only Enter writes";
    clerk.tab();
    EXPECT_EQ(clerk.focusedName(), "Command(0)");
    type("eSaihi", "2006/2/31");
    EXPECT_EQ(clerk.expectedDialogs(), 0) << "no date: nothing happens";
    clerk.answerConfirm(true);
    clerk.answerConfirm(false);
    type("eSaihi", "2006/2/9");
    EXPECT_EQ(clerk.lastSaid(), "再振替日の月日はいいですか？");
    EXPECT_FALSE(QFile::exists("Drive/A/f"));
    expectRun(true);
    type("eSaihi", "2006/2/21");
    EXPECT_EQ(clerk.lastSaid(), "郵便ディスク作成、完了しました。");
    EXPECT_EQ(clerk.text("lyobi2") + datesInFile(), "火曜0127|0221");
    EXPECT_EQ(clerk.text("Progress"), "");

    // Without a contract any more, the date of before is asked back all the same.
    gDb->Execute("UPDATE Bnk SET Saifurikae=' ' WHERE Code=9900");
    QFile::remove("Drive/A/f");
    expectRun(true);
    clerk.click("Command(2)");
    EXPECT_EQ(datesInFile(), "0127|0221");

    OpenScreen<Seikyu_frm>();
    EXPECT_FALSE(isPrompted());
    expectRun(false);
    clerk.click("Command(2)");
    EXPECT_EQ(datesInFile(), "0127|    ");
}

TEST_F(DebitButtonsTest, Proposals) {
    const struct {
        const char* creation;
        const char* day;
        int mode;
        const char* proposal;
    } cases[] = {{"2006/1/31", "5日", 0, "2006/02/05日曜"},
                 {"2006/1/31", "30", 0, "2006/02/30"},
                 {"17/12/5", "20", 1, "18/01/20金曜"}};
    for (const auto& [creation, day, mode, proposal] : cases) {
        gDb->Execute("UPDATE Bnk SET Saifurikae='" + QString(day).left(2) + "' WHERE Code=9900");
        gDateMode = static_cast<std::int16_t>(mode);
        type("ebox(2)", creation);
        clerk.click("Command(2)");
        EXPECT_EQ(clerk.text("eSaihi") + clerk.text("lyobi2"), proposal);
    }
}

TEST_F(DebitButtonsTest, WhatTheScreenIsAsked) {
    gDb->Execute("UPDATE Bnk SET Saifurikae=NULL");
    clerk.find<TextBox>("ebox(2)").SetText("2006/1/32");
    for (const char* writer : {"Command(1)", "Command(2)"}) {
        clerk.answerAlert();
        clerk.click(writer);
        EXPECT_EQ(clerk.lastSaid(), "作成日を正しく入れて下さい。");
    }
    type("ebox(2)", "2006/2/10");
    type("ebox(1)", "2");
    expectRun(false);
    clerk.click("Command(2)");
    EXPECT_TRUE(clerk.said().contains("件数：1\n金額：2000")) << "the month on the screen, not the date's";

    type("ebox(5)", "0123");
    clerk.answerConfirm(true);
    clerk.answerAlert();
    clerk.click("Command(1)");
    EXPECT_EQ(clerk.lastSaid(), "該当が有りません。");

    // Without a floppy both readers end in the same words.
    QDir("Drive/A").removeRecursively();
    for (const char* reader : {"Command(3)", "Command(4)"}) {
        clerk.answerConfirm(true);
        clerk.answerAlert();
        clerk.click(reader);
        EXPECT_EQ(clerk.lastSaid() + clerk.text("Progress"), "フロッピーが入っていません。ディスク読込中!");
    }
}

TEST_F(DebitButtonsTest, TheStatementsTakeWhatStandsOnTheScreen) {
    gPrintPreview = false;
    QDir().mkdir("Prt");
    for (const char* sheet : {"Prt/口座振替明細表.xlsx", "Prt/郵便局口座振替明細表.xlsx"})
        QFile::copy(QString(AKARIX_SOURCE_DIR "/") + sheet, sheet);
    const auto print = [this](const char* button) {
        AnswerPrinter(clerk, store.path("out.pdf"));
        clerk.click(button);
        const QString page = PdfPages("out.pdf").join("");
        QFile::remove("out.pdf");
        return page;
    };
    SetClock(DateSerial(2006, 1, 28));
    type("ebox(1)", "2");
    type("ebox(2)", "2006/2/10");
    QString page = print("Command(6)");
    for (const char* text : {"2006年1月27日", "2006/02/10", "2,000"})
        EXPECT_TRUE(page.contains(text)) << text << " in " << page.toStdString();
    gDb->Execute("UPDATE Deal SET Bnk=123");
    type("ebox(5)", "0123");
    page = print("Command(5)");
    EXPECT_TRUE(page.contains("平成18年2月分") && page.contains("2,000")) << page.toStdString();
}

}  // namespace
}  // namespace akarix
