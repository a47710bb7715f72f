#include "debit/BankDebitFile.h"
#include "debit/Dealer.h"
#include "debit/DebitPath.h"
#include "debit/PostDebitFile.h"
#include "debit/TotalSheet.h"
#include "platform/print/PdfText.h"
#include "store/Consignor.h"

namespace akarix {
namespace {

const DebitWish kApril{2023, 4, DateSerial(2023, 4, 5)};
const QString kNoDisk = "フロッピーが入っていません。";
const QString kDiskFull = "フロッピーがいっぱいです。";

class DebitFiles : public DebitTest {
 protected:
    void SetUp() override {
        DebitTest::SetUp();
        customer("1,'ｱｵｷ',10,123,5,1,'1234567',0", "5307");
        customer("2,'ｲﾉｳｴ',20,123,5,1,'7654321',0", "3000");
        customer("3,'ｳｴﾀﾞ',30,9900,10010,1,'12345678',4000", "5000");
        customer("4,'ｴｸﾞﾁ',40,9900,10010,1,'87654321',0", "2500.5");
    }
    /// A covering sheet with a word in each cell that the program may or may not fill.
    static void makeTotalSheet() {
        QDir().mkdir("Prt");
        lxw_workbook* book = workbook_new("Prt/口座振替合計表.xlsx");
        lxw_worksheet* sheet = workbook_add_worksheet(book, "Sheet1");
        lxw_format* asText = workbook_add_format(book);  // keeps the zeros in front of the code
        format_set_num_format(asText, "@");
        for (const char* address : {"A2", "I5", "I6", "I7", "I8", "C9", "H9", "I9"})
            worksheet_write_string(sheet, CELL(address), QByteArray("old").append(address), asText);
        ASSERT_EQ(workbook_close(book), LXW_NO_ERROR);
    }

    // What is told, the question left out, when the run ends in one message.
    QString writeBank() {
        clerk.answerConfirm(true);
        clerk.answerAlert();
        WriteBankDebit(kApril, "123", shown);
        return errorIn(clerk.lastSaid());
    }
    QString writePost() {
        clerk.answerConfirm(true);
        clerk.answerAlert();
        WritePostDebit(kApril, again, {}, shown);
        return errorIn(clerk.lastSaid());
    }
    /// What is told of a file that is written to its end. \param pdf where the sheet goes; none: cancelled
    QStringList finishPost(const QString& pdf = {}) {
        clerk.answerConfirm(true);
        if (pdf.isEmpty())
            AnswerEscape(clerk, "Printer_frm");
        else
            AnswerPrinter(clerk, pdf);
        clerk.answerAlert();
        clerk.answerAlert();
        WritePostDebit(kApril, again, {}, shown);
        return clerk.said().mid(clerk.said().size() - 2);
    }

    RetransferDay again{"  ", "  "};
};

TEST_F(DebitFiles, ABankFileEndsAtItsFirstRecord) {
    writeFile("Drive/A/FURIKAE", QByteArray(500, 'x'));
    EXPECT_EQ(writeBank(), "3265");
    EXPECT_EQ(progress, (QStringList{"ディスク作成中！", "1 / 2"})) << "stays as it stands";
    // The file is still open: whichever disk comes next is refused.
    EXPECT_EQ(writeBank() + writePost(), "5555");
    Close(kDebitFile);
    const QList<QByteArray> lines = readFile("Drive/A/FURIKAE").split('\n');
    ASSERT_EQ(lines.size(), 3) << "header and one record, nothing of the file before";
    EXPECT_TRUE(lines.at(0).startsWith("1910") && lines.at(1).startsWith("20123"));
}

TEST_F(DebitFiles, ThePostOfficeFileIsWrittenAndTold) {
    makeTotalSheet();
    const QStringList told{"件数：2\n金額：6500.5", "郵便ディスク作成、完了しました。"};
    EXPECT_EQ(finishPost(store.path("out.pdf")), told);
    EXPECT_EQ(progress, (QStringList{"ディスク作成中！", "1 / 2", "2 / 2", ""}));
    const QByteArray first = readFile("Drive/A/jiharai");
    EXPECT_EQ(first.size(), 5 * 122);
    const QString sheet = PdfPages("out.pdf").value(0);
    expectTexts(sheet, {"ゆうちょ銀行ＦＤ合計表", "01234567", "ｱｶﾘｸｽｶﾞｽ(ｶ", "2件", "6,501円", "oldC9"});
    EXPECT_FALSE(sheet.contains("oldI9"));

    EXPECT_EQ(finishPost(), told) << "a cancelled sheet is not talked about";
    EXPECT_EQ(readFile("Drive/A/jiharai"), first) << "the same file as often as wanted";
}

TEST_F(DebitFiles, TheBanksTotalSheetHasNoSecondDate) {
    makeTotalSheet();
    AnswerPrinter(clerk, store.path("out.pdf"));
    const Consignor bank = LoadBankConsignor(123);
    PrintBankTotalSheet(FitBankConsignor(bank), {12, Currency(34567)});
    const QString sheet = PdfPages("out.pdf").value(0);
    expectTexts(sheet, {"自払ＦＤ合計表", "0001234567", "12件", "34,567円"});
    EXPECT_FALSE(sheet.contains("old"));
}

TEST_F(DebitFiles, WhatStopsAFile) {
    const QString unknown = "の委託者が登録されていません。";
    const struct {
        const char* reason;
        const char* before;
        QString said;
    } cases[] = {
        {"no name for the file", "UPDATE Bnk SET fName=' '", unknown},
        {"no branch", "UPDATE Bnk SET fName='x',Stn=NULL", unknown},
        {"nobody owes anything", "UPDATE Bnk SET Stn=1", "該当が有りません。"},
        {"no consignor", "DELETE FROM Bnk", unknown},
    };
    gDb->Execute("UPDATE TtoD SET NGaku=Gaku");
    for (const auto& [reason, before, said] : cases) {
        gDb->Execute(before);
        const bool isUnknown = said == unknown;
        EXPECT_EQ(writeBank(), isUnknown ? "銀行" + said : said) << reason;
        EXPECT_EQ(writePost(), isUnknown ? "郵便局" + said : said) << reason;
    }
    EXPECT_TRUE(QDir("Drive/A").isEmpty());
    clerk.answerConfirm(false);
    WritePostDebit(kApril, again, {}, shown);
    EXPECT_EQ(clerk.lastSaid(), "郵便局ディスクを作成しますか？");
}

TEST_F(DebitFiles, DisksThatCannotBeWritten) {
    // A device that takes nothing, in the place of the file.
    ASSERT_TRUE(QFile::link("/dev/full", "Drive/A/jiharai"));
    EXPECT_EQ(writePost(), kDiskFull);
    QFile::remove("Drive/A/jiharai");
    QDir("Drive/A").mkdir("jiharai");
    EXPECT_EQ(writePost(), "75") << "a folder in the place of the file";
    QDir("Drive/A").removeRecursively();
    EXPECT_EQ(writePost() + writeBank(), kNoDisk + kNoDisk);
    gDb->Execute("UPDATE Bnk SET fName='C:\\a\\b\\c'");
    QDir().mkpath("Drive/C");
    EXPECT_EQ(writePost(), "76") << "only the first folder is made";
}

TEST_F(DebitFiles, ADiskThatFillsUpInTheMiddleStaysOpen) {
    // More than the machine keeps back before it writes.
    for (int deal = 100; deal < 300; ++deal)
        customer(QString("%1,'ｱ',%1,9900,10010,1,'%1',0").arg(deal), "100");
    ASSERT_TRUE(QFile::link("/dev/full", "Drive/A/jiharai"));
    EXPECT_EQ(writePost(), kDiskFull);
    EXPECT_EQ(writePost(), "55");
}

TEST_F(DebitFiles, MoreAccountsThanAFileHolds) {
    ScratchStore::run(
        "DELETE FROM Deal;\nINSERT INTO Deal(Code,Bnk,Stn,Kind,Koza) VALUES(1,9900,10010,1,'0')");
    for (int count = 1; count < 32768; count *= 2) {
        gDb->Execute(
            QString(
                "INSERT INTO Deal(Code,Bnk,Stn,Kind,Koza) SELECT Code+%1,9900,10010,1,Code+%1-1 FROM Deal")
                .arg(count));
    }
    gDb->Execute("INSERT INTO TtoD(Deal,Nendo,Getudo,Gaku) SELECT Code,2023,4,100 FROM Deal WHERE Code>4");
    EXPECT_EQ(ScratchStore::rows("SELECT COUNT(*) FROM Deal"), QStringList{"32768"});
    EXPECT_EQ(writePost(), "6");
    Close(1);
    gDb->Execute("DELETE FROM Deal WHERE Code=7");
    EXPECT_EQ(finishPost().first(), "件数：32767\n金額：3292107.5");
}

TEST_F(DebitFiles, TheFolderInFrontOfTheName) {
    QDir().mkpath("Drive/C");
    gDb->Execute("UPDATE Bnk SET fName='C:\\furikae\\FILE'");
    finishPost();
    EXPECT_EQ(readFile("Drive/C/furikae/FILE").size(), 5 * 122);
    EXPECT_FALSE(QFile::exists("Drive/A/FILE"));

    QDir("Drive/C/furikae").removeRecursively();
    EXPECT_EQ(writeBank(), "3265");
    EXPECT_TRUE(QFile::exists("Drive/A/FILE")) << "a bank takes the floppy alone";
    EXPECT_TRUE(QDir("Drive/C/furikae").exists()) << "but its folder is made";
}

TEST(DebitPath, WhereTheFolderEnds) {
    const char* const cases[][3] = {{"", "A:\\", ""},
                                    {"C:\\d\\e\\F", "C:\\d\\", "e\\F"},
                                    {"C:\\FILE", "A:\\", "C:\\FILE"},
                                    {"C:FILE\\x", "A:\\", "C:FILE\\x"}};
    for (const auto& [fName, folder, name] : cases) {
        const DebitPath path = SplitDebitPath(fName);
        EXPECT_EQ(path.folder + "|" + path.name, QString(folder) + "|" + name);
    }
}

}  // namespace
}  // namespace akarix
