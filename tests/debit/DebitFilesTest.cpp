#include <QListWidget>

#include "debit/BankDebitFile.h"
#include "debit/Dealer.h"
#include "debit/DebitPath.h"
#include "debit/PostDebitFile.h"
#include "debit/TotalSheet.h"
#include "platform/forms/TextBox.h"
#include "platform/print/PdfText.h"
#include "platform/runtime/RuntimeError.h"
#include "store/Consignor.h"

namespace akarix {
namespace {

const DebitWish kApril{2023, 4, DateSerial(2023, 4, 5)};
const QString kNoDisk = "フロッピーが入っていません。";
const QString kDiskFull = "フロッピーがいっぱいです。";

/// The number of an error that was told by its number.
QString errorIn(const QString& said) {
    return said.startsWith("エラー") ? said.section('\n', 0, 0).mid(3) : said;
}

class DebitFiles : public DebitTest {
 protected:
    void SetUp() override {
        DebitTest::SetUp();
        customer("1,'ｱｵｷ',10,123,5,1,'1234567',0", "5307");
        customer("2,'ｲﾉｳｴ',20,123,5,1,'7654321',0", "3000");
        customer("3,'ｳｴﾀﾞ',30,9900,10010,1,'12345678',4000", "5000");
        customer("4,'ｴｸﾞﾁ',40,9900,10010,1,'87654321',0", "2500.5");
    }
    /// What was said after the question; the action is answered "yes" and its messages with Enter.
    QStringList writeBank(int alerts = 1, const QString& bank = "123") {
        return write(alerts, [&] { WriteBankDebit(kApril, bank, shown); });
    }
    QStringList writePost(int alerts = 1, const QString& typed = {}) {
        return write(alerts, [&] { WritePostDebit(kApril, again, typed, shown); });
    }
    QStringList write(int alerts, const std::function<void()>& action) {
        const qsizetype before = clerk.said().size();
        clerk.answerConfirm(true);
        for (int i = 0; i < alerts; ++i) {
            clerk.answerAlert();
        }
        action();
        return clerk.said().mid(before + 1);
    }
    void choosePrinter() {
        clerk.expect("Printer_frm", [this](QWidget&) {
            auto& printers = clerk.find<QListWidget>("Printers");
            printers.setCurrentRow(printers.count() - 1);
            clerk.find<TextBox>("Path").SetText(store.path("out.pdf"));
            clerk.click("Print");
        });
    }
    QStringList writePostAndPrint(bool print) {
        const qsizetype before = clerk.said().size();
        clerk.answerConfirm(true);
        if (print) {
            choosePrinter();
        } else {
            clerk.expect("Printer_frm", [this](QWidget&) { clerk.press(Qt::Key_Escape); });
        }
        clerk.answerAlert();
        clerk.answerAlert();
        WritePostDebit(kApril, again, {}, shown);
        return clerk.said().mid(before + 2);
    }

    RetransferDay again{"  ", "  "};
};

TEST_F(DebitFiles, ABankFileEndsAtItsFirstRecord) {
    writeFile("Drive/A/FURIKAE", QByteArray(500, 'x'));
    EXPECT_EQ(errorIn(writeBank().value(0)), "3265");
    EXPECT_EQ(progress, (QStringList{"ディスク作成中！", "1 / 2"})) << "stays as it stands";
    // The file is still open: whichever disk comes next is refused.
    EXPECT_EQ(errorIn(writeBank().value(0)), "55");
    EXPECT_EQ(errorIn(writePost().value(0)), "55");
    Close(kDebitFile);
    const QList<QByteArray> lines = readFile("Drive/A/FURIKAE").split('\n');
    ASSERT_EQ(lines.size(), 3) << "header and one record, nothing of the file before";
    EXPECT_EQ(lines.at(0).left(4), "1910");
    EXPECT_TRUE(lines.at(1).startsWith("20123") && lines.at(2).isEmpty());
    EXPECT_EQ(ScratchStore::rows("SELECT Deal,Gaku,NGaku FROM TtoD WHERE Deal=1"), QStringList{"1|5307|0"});
}

TEST_F(DebitFiles, ThePostOfficeFileIsWrittenAndTold) {
    makeTotalSheet();
    EXPECT_EQ(writePostAndPrint(true),
              (QStringList{"件数：2\n金額：6500.5", "郵便ディスク作成、完了しました。"}));
    EXPECT_EQ(progress, (QStringList{"ディスク作成中！", "1 / 2", "2 / 2", ""}));
    const QByteArray first = readFile("Drive/A/jiharai");
    EXPECT_EQ(first.size(), 5 * 122);
    const QString sheet = PdfPages("out.pdf").value(0);
    for (const char* cell : {"ゆうちょ銀行ＦＤ合計表", "01234567", "ｱｶﾘｸｽｶﾞｽ(ｶ", "2件", "6,501円", "oldC9"}) {
        EXPECT_TRUE(sheet.contains(cell)) << cell << " in " << sheet.toStdString();
    }
    EXPECT_FALSE(sheet.contains("oldI9"));

    EXPECT_EQ(writePostAndPrint(false).size(), 2) << "a cancelled sheet is not talked about";
    EXPECT_EQ(readFile("Drive/A/jiharai"), first) << "the same file as often as wanted";
}

TEST_F(DebitFiles, TheBanksTotalSheetHasNoSecondDate) {
    makeTotalSheet();
    choosePrinter();
    Consignor bank;
    LoadBankConsignor(123, bank);
    PrintBankTotalSheet(FitBankConsignor(bank), {12, Currency(34567)});
    const QString sheet = PdfPages("out.pdf").value(0);
    for (const char* cell : {"自払ＦＤ合計表", "0001234567", "12件", "34,567円"}) {
        EXPECT_TRUE(sheet.contains(cell)) << cell << " in " << sheet.toStdString();
    }
    EXPECT_FALSE(sheet.contains("old"));
}

TEST_F(DebitFiles, TheSecondDateIsAskedBack) {
    clerk.answerConfirm(true);
    clerk.answerConfirm(false);
    WritePostDebit(kApril, again, "2023/05/20", shown);
    EXPECT_EQ(clerk.lastSaid(), "再振替日の月日はいいですか？");
    EXPECT_FALSE(QFile::exists("Drive/A/jiharai"));

    clerk.answerConfirm(true);
    clerk.answerConfirm(true);
    clerk.expect("Printer_frm", [this](QWidget&) { clerk.press(Qt::Key_Escape); });
    clerk.answerAlert();
    clerk.answerAlert();
    WritePostDebit(kApril, again, "2023/5/9", shown);
    EXPECT_EQ(readFile("Drive/A/jiharai").mid(103, 4), "0509");

    clerk.answerConfirm(true);
    clerk.answerConfirm(true);
    clerk.answerAlert();
    WritePostDebit(kApril, again, "2023/2/30", shown);
    EXPECT_EQ(errorIn(clerk.lastSaid()), "13");
}

TEST_F(DebitFiles, WhatStopsAFile) {
    const struct {
        const char* reason;
        const char* before;
        const char* said;
    } cases[] = {
        {"no name for the file", "UPDATE Bnk SET fName=' '", "の委託者が登録されていません。"},
        {"no consignor's name", "UPDATE Bnk SET fName='x',Itakusya=NULL", "の委託者が登録されていません。"},
        {"no branch", "UPDATE Bnk SET Itakusya='x',Stn=NULL", "の委託者が登録されていません。"},
        {"nobody owes anything", "UPDATE Bnk SET Stn=1", "該当が有りません。"},
        {"no consignor", "DELETE FROM Bnk", "の委託者が登録されていません。"},
    };
    gDb->Execute("UPDATE TtoD SET NGaku=Gaku");
    for (const auto& [reason, before, said] : cases) {
        gDb->Execute(before);
        EXPECT_TRUE(writeBank().value(0).endsWith(said)) << reason;
        EXPECT_TRUE(writePost().value(0).endsWith(said)) << reason;
    }
    EXPECT_TRUE(QDir("Drive/A").isEmpty());
    clerk.answerConfirm(false);
    WritePostDebit(kApril, again, {}, shown);
    EXPECT_EQ(clerk.lastSaid(), "郵便局ディスクを作成しますか？");
}

TEST_F(DebitFiles, DisksThatCannotBeWritten) {
    // A device that takes nothing, in the place of the file.
    ASSERT_TRUE(QFile::link("/dev/full", "Drive/A/jiharai"));
    EXPECT_EQ(writePost(), QStringList{kDiskFull});
    QFile::remove("Drive/A/jiharai");
    QDir("Drive/A").mkdir("jiharai");
    EXPECT_EQ(errorIn(writePost().value(0)), "75") << "a folder in the place of the file";
    QDir("Drive/A").removeRecursively();
    EXPECT_EQ(writePost(), QStringList{kNoDisk});
    EXPECT_EQ(writeBank(), QStringList{kNoDisk});
    gDb->Execute("UPDATE Bnk SET fName='C:\\a\\b\\c'");
    QDir().mkpath("Drive/C");
    EXPECT_EQ(errorIn(writePost().value(0)), "76") << "only the first folder is made";
    EXPECT_EQ(ScratchStore::rows("SELECT SUM(NGaku) FROM TtoD"), QStringList{"0"});
}

TEST_F(DebitFiles, AFileBrokenOffIsNotTheOldOne) {
    // More than the machine keeps back before it writes, so that the disk fills up in the middle.
    for (int deal = 100; deal < 300; ++deal) {
        customer(QString("%1,'ｱ',%1,9900,10010,1,'%1',0").arg(deal), "100");
    }
    ASSERT_TRUE(QFile::link("/dev/full", "Drive/A/jiharai"));
    EXPECT_EQ(writePost(), QStringList{kDiskFull});
    EXPECT_EQ(errorIn(writePost().value(0)), "55") << "the broken file is still open";
}

TEST_F(DebitFiles, TheFolderInFrontOfTheName) {
    QDir().mkpath("Drive/C");
    gDb->Execute("UPDATE Bnk SET fName='C:\\furikae\\FILE'");
    clerk.answerConfirm(true);
    clerk.expect("Printer_frm", [this](QWidget&) { clerk.press(Qt::Key_Escape); });
    clerk.answerAlert();
    clerk.answerAlert();
    WritePostDebit(kApril, again, {}, shown);
    EXPECT_EQ(readFile("Drive/C/furikae/FILE").size(), 5 * 122);
    EXPECT_FALSE(QFile::exists("Drive/A/FILE"));

    QDir("Drive/C").removeRecursively();
    QDir().mkpath("Drive/C");
    EXPECT_EQ(errorIn(writeBank().value(0)), "3265");
    EXPECT_TRUE(QFile::exists("Drive/A/FILE")) << "a bank takes the floppy alone";
    EXPECT_TRUE(QDir("Drive/C/furikae").isEmpty()) << "but its folder is made";
}

TEST(DebitPath, WhereTheFolderEnds) {
    const struct {
        const char* fName;
        const char* folder;
        const char* name;
    } cases[] = {{"FILE", "A:\\", "FILE"},
                 {"", "A:\\", ""},
                 {"C:\\d\\FILE", "C:\\d\\", "FILE"},
                 {"C:\\d\\e\\F", "C:\\d\\", "e\\F"},
                 {"C:\\FILE", "A:\\", "C:\\FILE"},
                 {"C:FILE\\x", "A:\\", "C:FILE\\x"},
                 {"\\\\host\\x", "A:\\", "\\\\host\\x"},
                 {"ab\\\\", "ab\\\\", ""}};
    for (const auto& [fName, folder, name] : cases) {
        const DebitPath path = SplitDebitPath(fName);
        EXPECT_EQ(path.folder + "|" + path.name, QString(folder) + "|" + name);
    }
}

}  // namespace
}  // namespace akarix
