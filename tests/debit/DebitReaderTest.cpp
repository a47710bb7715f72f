#include "debit/DebitReader.h"

#include "debit/Dealer.h"

namespace akarix {
namespace {

QByteArray Header(const QByteArray& monthAndDay = "0427") {
    return ("1910" + QByteArray(50, '0') + monthAndDay).leftJustified(120) + "\r\n";
}
QByteArray data(int deal, int amount, char code = '0') {
    return "2" + QByteArray(79, '0') + QByteArray::number(amount).rightJustified(10, '0') + "0" +
           QByteArray::number(deal).rightJustified(20, '0') + code + QByteArray(8, ' ') + "\r\n";
}
/// A record of customer 1 about 5 yen. \param place of the changed part, counted from 1
QByteArray Changed(int place, const QByteArray& part, int width) {
    return QByteArray(data(1, 5)).replace(place - 1, width, part);
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
            "INSERT INTO Deal(Code,Sime) VALUES(1,31),(2,20);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo,NGaku) VALUES(1,2023,4,500),(2,2023,4,500);\n"
            "INSERT INTO TtoD(Deal,Nendo,Getudo) VALUES(2,2023,5);\n");
    }

    QString read(const QByteArray& file) {
        writeFile("Drive/A/FURIKAE", file);
        return read();
    }
    /// What is said at the end, or the number of the error. \param asked when the header can be read
    QString read(bool asked = true, bool post = false) {
        clerk.answerConfirm(true);
        if (asked) clerk.answerConfirm(true);
        clerk.answerAlert();
        if (post)
            ReadPostResult(shown);
        else
            ReadBankResult("0123", shown);
        return errorIn(clerk.lastSaid());
    }
    void forget() {
        Close(1);
        ScratchStore::run("DELETE FROM Dny;\nDELETE FROM FDLog");
    }
    static QStringList posted(const QString& columns) {
        return ScratchStore::rows("SELECT " + columns + " FROM Dny ORDER BY Dno");
    }
    static QStringList log() { return ScratchStore::rows("SELECT Bnk,Nendo,Getudo FROM FDLog"); }
};

TEST_F(ReadBack, PostsWhatWasDebited) {
    EXPECT_EQ(read(Header() + data(1, 3000) + data(2, 4000) + data(2, 9, '1') + end()),
              "2 / 3 件　完了しました。");
    EXPECT_EQ(clerk.said().at(1), "処理年=2023 月=4 は正しいですか？");
    EXPECT_EQ(posted("Dno,Eda,Hizuke,Deal,Kubun,Gaku,Naiyo,Nendo,Getudo"),
              (QStringList{"0|0|2023/04/27|1|2|3000|-|2023|4", "1|0|2023/04/27|2|2|4000|-|2023|5"}));
    EXPECT_EQ(ScratchStore::rows("SELECT Deal,Getudo,NGaku FROM TtoD ORDER BY Deal,Getudo"),
              (QStringList{"1|4|3000", "2|4|500", "2|5|4000"}))
        << "in the place of what was paid by hand; past the closing day the month is the next one";
    EXPECT_EQ(progress, (QStringList{"ディスク読込中!", ""}));
    EXPECT_EQ(read(), "このフロッピーは既に読み込み完了しています。");

    // The log tells the banks apart, not the disks.
    gDb->Execute("UPDATE Bnk SET fName='FURIKAE' WHERE Code=9900");
    read(true, true);
    EXPECT_EQ(log(), (QStringList{"123|2023|4", "9900|2023|4"}));
    EXPECT_EQ(posted("Dno"), (QStringList{"0", "1", "2", "3"}));

    SetClock(DateSerial(2024, 5, 15));
    EXPECT_EQ(read(), "2 / 3 件　完了しました。") << "the same month of the next year is another disk";
    EXPECT_EQ(log(), (QStringList{"123|2023|4", "9900|2023|4", "123|2024|4"}));
}

TEST_F(ReadBack, QuestionsThatAreDenied) {
    writeFile("Drive/A/FURIKAE", Header() + data(1, 3000) + end());
    clerk.answerConfirm(false);
    ReadBankResult("123", shown);
    EXPECT_EQ(progress, QStringList());
    clerk.answerConfirm(true);
    clerk.answerConfirm(false);
    ReadBankResult("123", shown);
    EXPECT_EQ(posted("Dno") + log(), QStringList());
    EXPECT_EQ(read(), "1 / 1 全件　完了しました。") << "the file was closed";
}

TEST_F(ReadBack, TheYearOfTheHeader) {
    const Date january = DateSerial(2023, 1, 10);
    const Date may = DateSerial(2023, 5, 15);
    const struct {
        Date today;
        const char* monthAndDay;
        QString day;  ///< none: error 13
    } cases[] = {
        {january, "1227", "2022/12/27"}, {may, " 427", "2023/04/27"}, {may, "0431", {}}, {may, "", {}}};
    for (const auto& [today, monthAndDay, day] : cases) {
        forget();
        SetClock(today);
        writeFile("Drive/A/FURIKAE", Header(monthAndDay) + data(1, 1) + end());
        const QString said = read(!day.isEmpty());
        EXPECT_EQ(said, day.isEmpty() ? "13" : "1 / 1 全件　完了しました。") << monthAndDay;
        EXPECT_EQ(posted("Hizuke").value(0), day);
    }
}

/// Files as they come back, or as somebody has made them. A payment is "customer|amount".
TEST_F(ReadBack, FilesOfAllKinds) {
    const QString all = " 全件　完了しました。";
    const QString none = " 入金が確認出来ませんでした。";
    const struct {
        const char* what;
        QByteArray records;
        QString said;
        QStringList payments;
    } cases[] = {
        {"all failed", data(1, 5, '1') + data(2, 5, '9') + end(), "0 / 2" + none, {}},
        {"blank or letter", data(1, 5, ' ') + data(2, 6, 'X') + end(), "2 / 2" + all, {"1|5", "2|6"}},
        {"nobody's number", data(777, 5) + end(), "1 / 1" + all, {"777|5"}},
        {"more behind the trailer", end() + data(1, 5), "0 / 0" + all, {}},
        {"no end", data(1, 5), "62", {"1|5"}},
        {"an end mark in the middle", data(1, 5) + "\x1a" + end(), "62", {"1|5"}},
        {"cut before the result", data(1, 70).left(111) + "\r\n" + end(), "1 / 1" + all, {"1|70"}},
        {"an empty line counts", "\r\n" + end(), "1 / 1" + all, {"0|0"}},
        {"blanks in the amount", Changed(81, "  1 2 \xa5   ", 10) + end(), "1 / 1" + all, {"1|12"}},
        {"ten digits of yen", Changed(81, "9876543210", 10) + end(), "1 / 1" + all, {"1|9876543210"}},
        {"a full-width character counts as one", Changed(51, "\x82\xa0", 1) + end(), "1 / 1" + all, {"1|5"}},
        {"a comma parts the record", Changed(61, ",", 1) + end(), "2 / 2" + all, {"0|0", "0|0"}},
        {"a record in two lines",
         Changed(25, "\r\n" + QByteArray(20, ' '), 20) + end(),
         "2 / 2" + all,
         {"0|0", "0|0"}},
        {"a number past 32 bits", Changed(92, QByteArray(20, '7'), 20) + end(), "6", {}},
        {"an amount that is none", Changed(81, "0000001-20", 10) + end(), "13", {}},
        {"LF alone", QByteArray(data(1, 2) + end()).replace("\r\n", "\n"), "1 / 1" + all, {"1|2"}},
        {"no line ends at all", QByteArray(data(1, 5)).replace("\r\n", "") + "9", "62", {"1|5"}},
    };
    for (const auto& [what, records, said, payments] : cases) {
        forget();
        EXPECT_EQ(read(Header() + records), said) << what;
        EXPECT_EQ(posted("Deal,Gaku"), payments) << what;
        EXPECT_EQ(log().isEmpty(), !said.contains('/')) << what;
    }
}

TEST_F(ReadBack, ADiskBrokenOffInTheMiddleIsPostedTwice) {
    const QByteArray whole = Header() + data(1, 3000) + data(2, 4000) + end();
    EXPECT_EQ(read(whole.left(244)), "62");
    EXPECT_EQ(read(false), "55") << "the file is still open";
    Close(1);
    EXPECT_EQ(read(whole), "2 / 2 全件　完了しました。");
    EXPECT_EQ(posted("Dno,Deal,Gaku"), (QStringList{"0|1|3000", "1|1|3000", "2|2|4000"}));
    EXPECT_EQ(log(), QStringList{"123|2023|4"});
}

TEST_F(ReadBack, WhereTheFileIsSought) {
    EXPECT_EQ(read(false), "53");
    gDb->Execute("UPDATE Bnk SET fName='C:\\out\\F' WHERE Code=123");
    QDir().mkpath("Drive/C");
    EXPECT_EQ(read(false), "76") << "a folder is not made for reading";
    QDir().mkpath("Drive/C/out");
    writeFile("Drive/C/out/F", Header() + data(1, 5) + end());
    EXPECT_EQ(read(), "1 / 1 全件　完了しました。");
    gDb->Execute("DELETE FROM Bnk");
    EXPECT_EQ(read(false), "75") << "no consignor, no name";
}

}  // namespace
}  // namespace akarix
