#include "debit/DebitReader.h"

#include "debit/Dealer.h"

namespace akarix {
namespace {

QByteArray header(const QByteArray& monthAndDay = "0427") {
    return ("1910" + QByteArray(50, '0') + monthAndDay).leftJustified(120) + "\r\n";
}
QByteArray data(int deal, int amount, char code) {
    return "2" + QByteArray(79, '0') + QByteArray::number(amount).rightJustified(10, '0') + "0" +
           QByteArray::number(deal).rightJustified(20, '0') + code + QByteArray(8, ' ') + "\r\n";
}
QByteArray end() {
    return QByteArray("8").leftJustified(120, '0') + "\r\n" + QByteArray("9").leftJustified(120) + "\r\n";
}

/// 15 May 2023. Two customers with a ledger row of April and May; 1 closes at the month's end, 2 on the 20th.
class ReadBack : public DebitTest {
 protected:
    void SetUp() override {
        DebitTest::SetUp();
        SetClock(DateSerial(2023, 5, 15));
        ScratchStore::run(
            "INSERT INTO Deal(Code,Sime) VALUES(1,31);\n"
            "INSERT INTO Deal(Code,Sime) VALUES(2,20);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,NGaku) VALUES(1,2023,4,500);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,NGaku) VALUES(2,2023,4,500);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo) VALUES(2,2023,5);\n");
    }

    /// Reads a bank's disk to its end; what was said at the end, or the number of the error.
    QString read(const QByteArray& file) {
        writeFile("Drive/A/FURIKAE", file);
        return read(3);
    }
    /// \param dialogs 1 the question alone, 2 a message behind it, 3 the month asked in between
    QString read(int dialogs) {
        clerk.answerConfirm(true);
        if (dialogs == 3) clerk.answerConfirm(true);
        clerk.answerAlert();
        ReadBankResult("0123", shown);
        const QString said = clerk.lastSaid();
        return said.startsWith("エラー") ? said.section('\n', 0, 0) : said;
    }
    void forget() {
        CloseAll();
        ScratchStore::run(
            "DELETE FROM Dny;\n"
            "DELETE FROM FDLog;\n");
    }
    static QStringList posted() {
        return ScratchStore::rows(
            "SELECT Dno,Eda,Hizuke,Deal,Kubun,Gaku,Naiyo,Nendo,Getudo FROM Dny ORDER BY Dno");
    }
    static QStringList log() { return ScratchStore::rows("SELECT Bnk,Nendo,Getudo FROM FDLog"); }
};

TEST_F(ReadBack, PostsWhatWasDebited) {
    EXPECT_EQ(read(header() + data(1, 3000, '0') + data(2, 4000, '0') + data(2, 9, '1') + end()),
              "2 / 3 件　完了しました。");
    EXPECT_EQ(clerk.said().at(1), "処理年=2023 月=4 は正しいですか？");
    EXPECT_EQ(posted(),
              (QStringList{"0|0|2023/04/27|1|2|3000|-|2023|4", "1|0|2023/04/27|2|2|4000|-|2023|5"}));
    EXPECT_EQ(ScratchStore::rows("SELECT Deal,Getudo,NGaku FROM TtoD ORDER BY Deal,Getudo"),
              (QStringList{"1|4|3000", "2|4|500", "2|5|4000"}))
        << "in the place of what was paid by hand; past the closing day the month is the next one";
    EXPECT_EQ(log(), QStringList{"123|2023|4"});
    EXPECT_EQ(progress, (QStringList{"ディスク読込中!", ""}));

    EXPECT_EQ(read(3), "このフロッピーは既に読み込み完了しています。");
    EXPECT_EQ(posted().size(), 2);
    // The log tells the banks apart, not the disks.
    gDb->Execute("UPDATE Bnk SET fName='FURIKAE' WHERE Code=9900");
    clerk.answerConfirm(true);
    clerk.answerConfirm(true);
    clerk.answerAlert();
    ReadPostResult(shown);
    EXPECT_EQ(log(), (QStringList{"123|2023|4", "9900|2023|4"}));
    EXPECT_EQ(posted().size(), 4);
    EXPECT_EQ(posted().at(2).left(2), "2|") << "the next free number";
}

TEST_F(ReadBack, QuestionsThatAreDenied) {
    writeFile("Drive/A/FURIKAE", header() + data(1, 3000, '0') + end());
    clerk.answerConfirm(false);
    ReadBankResult("123", shown);
    EXPECT_EQ(progress, QStringList());
    clerk.answerConfirm(true);
    clerk.answerConfirm(false);
    ReadBankResult("123", shown);
    EXPECT_EQ(clerk.lastSaid(), "処理年=2023 月=4 は正しいですか？");
    EXPECT_EQ(posted() + log(), QStringList());
    EXPECT_EQ(read(3), "1 / 1 全件　完了しました。") << "the file was closed";
}

TEST_F(ReadBack, TheYearOfTheHeader) {
    const struct {
        Date today;
        const char* monthAndDay;
        const char* day;  ///< none: error 13
    } cases[] = {{DateSerial(2023, 1, 10), "1227", "2022/12/27"},
                 {DateSerial(2023, 1, 10), "0105", "2023/01/05"},
                 {DateSerial(2023, 5, 15), " 427", "2023/04/27"},
                 {DateSerial(2024, 2, 29), "0229", "2024/02/29"},
                 {DateSerial(2023, 5, 15), "0431", ""},
                 {DateSerial(2023, 5, 15), "1301", ""},
                 {DateSerial(2023, 5, 15), "", ""},
                 {DateSerial(2023, 5, 15), "4-27", ""}};
    for (const auto& [today, monthAndDay, day] : cases) {
        forget();
        SetClock(today);
        writeFile("Drive/A/FURIKAE", header(monthAndDay) + data(1, 1, '0') + end());
        if (*day == '\0') {
            EXPECT_EQ(read(2), "エラー13") << monthAndDay;
        } else {
            EXPECT_EQ(read(3), "1 / 1 全件　完了しました。");
            EXPECT_EQ(posted().value(0).section('|', 2, 2), day);
        }
    }
}

/// Files as they come back, or as somebody has made them. A payment is "customer|amount".
TEST_F(ReadBack, FilesOfAllKinds) {
    QByteArray shortData = data(1, 70, '0').left(111) + "\r\n";
    QByteArray loneReturns = header() + data(1, 1, '0') + end();
    loneReturns.replace("\r\n", "\r");
    QByteArray loneFeeds = header() + data(1, 2, '0') + end();
    loneFeeds.replace("\r\n", "\n");
    const QByteArray blankAmount = QByteArray(data(1, 12, '0')).replace("0000000012", "  1 2 \xa5   ");
    const QByteArray named = QByteArray(data(1, 5, '0')).replace(50, 3, "\xb1\xb2\xb3");
    const QByteArray wide = QByteArray(data(1, 5, '0')).replace(50, 3, "\x82\xa0\xb3\xb4");
    const QByteArray utf8 = QByteArray(data(1, 5, '0')).replace(50, 1, "\xe3\x81\x82");
    const QByteArray comma = QByteArray(data(1, 5, '0')).replace(60, 1, ",");
    const QByteArray huge = QByteArray(data(1, 5, '0')).replace(91, 20, QByteArray(20, '7'));
    const QByteArray dashed = QByteArray(data(1, 5, '0')).replace(80, 10, "0000001-20");
    const QString all = " 全件　完了しました。";
    const struct {
        const char* what;
        QByteArray records;
        QString said;
        QStringList payments;
    } cases[] = {
        {"nothing but a trailer", end(), "0 / 0" + all, {}},
        {"all failed", data(1, 5, '1') + data(2, 5, '9') + end(), "0 / 2 入金が確認出来ませんでした。", {}},
        {"a blank and a letter are paid",
         data(1, 5, ' ') + data(2, 6, 'X') + end(),
         "2 / 2" + all,
         {"1|5", "2|6"}},
        {"nobody's number", data(777, 5, '0') + end(), "1 / 1" + all, {"777|5"}},
        {"the end record alone", data(1, 5, '0') + "9", "1 / 1" + all, {"1|5"}},
        {"what stands behind the trailer", end() + data(1, 5, '0'), "0 / 0" + all, {}},
        {"no end", data(1, 5, '0'), "エラー62", {"1|5"}},
        {"an end mark in the middle",
         data(1, 5, '0') + "\x1a" + data(2, 6, '0') + end(),
         "エラー62",
         {"1|5"}},
        {"cut before the result", shortData + end(), "1 / 1" + all, {"1|70"}},
        {"cut before the number", data(1, 70, '0').left(95) + "\r\n" + end(), "1 / 1" + all, {"0|70"}},
        {"an empty line counts as a record", "\r\n" + end(), "1 / 1" + all, {"0|0"}},
        {"blanks in the amount", blankAmount + end(), "1 / 1" + all, {"1|12"}},
        {"a half-width name", named + end(), "1 / 1" + all, {"1|5"}},
        {"a full-width one takes its bytes", wide + end(), "1 / 1" + all, {"1|5"}},
        {"another encoding shifts the rest", utf8 + end(), "0 / 1 入金が確認出来ませんでした。", {}},
        {"a comma parts the record", comma + end(), "2 / 2" + all, {"0|0", "0|0"}},
        {"a record that was written in two",
         QByteArray(data(1, 5, '0')).replace(24, 20, "\r\n" + QByteArray(20, ' ')) + end(),
         "2 / 2" + all,
         {"0|0", "0|0"}},
        {"a number past 32 bits", data(1, 5, '0') + huge + end(), "エラー6", {"1|5"}},
        {"an amount that is none", data(1, 5, '0') + dashed + end(), "エラー13", {"1|5"}},
        {"CR alone", loneReturns.mid(121), "1 / 1" + all, {"1|1"}},
        {"LF alone", loneFeeds.mid(121), "1 / 1" + all, {"1|2"}},
        {"no line ends at all", QByteArray(data(1, 5, '0')).replace("\r\n", "") + "9", "エラー62", {"1|5"}},
    };
    for (const auto& [what, records, said, payments] : cases) {
        forget();
        EXPECT_EQ(read(header() + records), said) << what;
        EXPECT_EQ(ScratchStore::rows("SELECT Deal,Gaku FROM Dny ORDER BY Dno"), payments) << what;
        EXPECT_EQ(log().size(), said.startsWith("エラー") ? 0 : 1) << what;
    }
    forget();
    writeFile("Drive/A/FURIKAE", "");
    EXPECT_EQ(read(2), "エラー62");
    forget();
    writeFile("Drive/A/FURIKAE", QByteArray(500, '\xff'));
    EXPECT_EQ(read(2), "エラー13");
}

TEST_F(ReadBack, ADiskBrokenOffInTheMiddleIsPostedTwice) {
    const QByteArray whole = header() + data(1, 3000, '0') + data(2, 4000, '0') + end();
    EXPECT_EQ(read(whole.left(244)), "エラー62");
    EXPECT_EQ(log(), QStringList());
    EXPECT_EQ(read(2), "エラー55") << "the file is still open";
    CloseAll();
    EXPECT_EQ(read(whole), "2 / 2 全件　完了しました。");
    EXPECT_EQ(ScratchStore::rows("SELECT Dno,Deal,Gaku FROM Dny ORDER BY Dno"),
              (QStringList{"0|1|3000", "1|1|3000", "2|2|4000"}));
    EXPECT_EQ(log(), QStringList{"123|2023|4"});
}

TEST_F(ReadBack, WhereTheFileIsSought) {
    EXPECT_EQ(read(2), "エラー53");
    gDb->Execute("UPDATE Bnk SET fName='C:\\out\\F' WHERE Code=123");
    QDir().mkpath("Drive/C");
    EXPECT_EQ(read(2), "エラー76") << "a folder is not made for reading";
    QDir().mkpath("Drive/C/out");
    writeFile("Drive/C/out/F", header() + data(1, 5, '0') + end());
    EXPECT_EQ(read(3), "1 / 1 全件　完了しました。");
    gDb->Execute("DELETE FROM Bnk");
    EXPECT_EQ(read(2), "エラー75") << "no consignor, no name";
}

TEST_F(ReadBack, AHundredThousandRecords) {
    QByteArray file = header();
    const QByteArray failed = data(1, 5, '1');
    constexpr int kRecords = 100000;
    file.reserve(kRecords * failed.size() + 1000);
    for (int i = 0; i < kRecords; ++i) {
        file += failed;
    }
    EXPECT_EQ(read(file + data(2, 4000, '0') + end()), "1 / 100001 件　完了しました。");
    EXPECT_EQ(posted(), QStringList{"0|0|2023/04/27|2|2|4000|-|2023|5"});
}

}  // namespace
}  // namespace akarix
