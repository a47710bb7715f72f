#include <QTemporaryDir>

#include "admin/DebitCheck.h"
#include "debit/BankDebitFile.h"
#include "debit/Dealer.h"
#include "debit/DebitQuery.h"
#include "debit/PostDebitFile.h"
#include "store/Consignor.h"
#include "tools/AdminRun.h"

namespace akarix::admin {
namespace {

QByteArray Digits(qint64 number, int width) {
    return QByteArray::number(number).rightJustified(width, '0');
}
QByteArray Header() {
    return ("1910" + Digits(123, 10) + QByteArray("\xb1\xb6\xd8").leftJustified(40) + "0427" + "0005" +
            QByteArray(15, ' ') + "001" + QByteArray(15, ' ') + "1" + Digits(7, 7))
        .leftJustified(120);
}
QByteArray data(int amount, char result) {
    return ("20005" + QByteArray(15, ' ') + "001" + QByteArray(15, ' ') + "    1" + Digits(7, 7) +
            QByteArray("\xb1\xb5\xb7").leftJustified(30) + Digits(amount, 10) + "0" + Digits(77, 20) + result)
        .leftJustified(120);
}
QByteArray Trailer(std::initializer_list<int> totals) {
    QByteArray record = "8";
    int width = 6;
    for (const int total : totals) {
        record += Digits(total, width);
        width = 18 - width;
    }
    return record.leftJustified(120);
}
const QByteArray kEnd = QByteArray("9").leftJustified(120);

/// The departures as "record: text", and the kind of file in front.
QStringList Check(const QList<QByteArray>& records) {
    const DebitReport report = CheckDebitFile({records.begin(), records.end()});
    QStringList lines{report.isResult ? "result" : "request"};
    for (const DebitDeparture& departure : report.departures)
        lines += QString::number(departure.record) + ": " + departure.text;
    return lines;
}
std::string Joined(const QStringList& lines) {
    return lines.join("\n").toStdString();
}

TEST(DebitCheck, Departures) {
    const auto with = [](QByteArray record, int place, const QByteArray& bytes) {
        return record.replace(place - 1, bytes.size(), bytes);
    };
    const QByteArray one = data(5, '0');
    const QByteArray totals = Trailer({1, 5, 0, 0, 0, 0});
    const struct {
        QList<QByteArray> records;
        const char* departure;
    } cases[] = {
        {{one, totals, kEnd}, "1: データレコードの順番ではない"},
        {{Header(), one, totals}, "0: エンドレコードで終わっていない"},
        {{Header(), one.left(100), totals, kEnd}, "2: 長さが 100 バイト（120 バイトのはず）"},
        {{with(Header(), 55, "0431"), one, totals, kEnd}, "1: 引落日（55-58桁目） 月日ではない: 「0431」"},
        {{Header(), with(one, 44, "12345 6"), totals, kEnd},
         "2: 口座番号（44-50桁目） 数字ではない: 「12345 6」"},
        {{Header(), with(one, 51, "\xa7\xb0\xb1z,\xa6\xde\xdf().-9Z"), totals, kEnd},
         "2: 預金者名（51-80桁目） 使えない文字「ｧｰz,」"},
        {{Header(), with(one, 51, " \xb1"), totals, kEnd}, "2: 預金者名（51-80桁目） 左詰めではない"},
        {{Header(), with(one, 112, " "), totals, kEnd},
         "2: 結果（112桁目） 空白 は定められた値（0、1、2、3、4、8、9）にない"},
        {{Header(), one, Trailer({2, 5, 0, 0, 0, 0}), kEnd},
         "3: 合計が 2件 5円、データレコードの合計は 1件 5円"},
    };
    for (const auto& [records, departure] : cases)
        EXPECT_TRUE(Check(records).contains(departure)) << departure << " not in\n" << Joined(Check(records));
    EXPECT_EQ(Check({"x"}).size(), 4) << "length, kind and end";
}

/// What the program has just written for the bank and for the post office.
class WrittenRequest : public DebitTest {
 protected:
    void SetUp() override {
        DebitTest::SetUp();
        customer("1,'ｱｵｷ ﾀﾛｳ',10,123,5,1,'1234567',0", "5307");
        customer("2,'ｲﾉｳｴ(ｺﾄﾞﾓ',20,9900,10010,1,'76543219',0", "3000");
        customer("3,'ｳｴﾀﾞ',30,9900,10120,1,'12',500", "4280");
    }
    QList<QByteArray> bank() {
        // The monthly query lacks the amount of the bill, at which the program's own run ends.
        const QString sql = DebitQuery(123, {2023, 4}).replace(" FROM TtoD", ",5307 AS Seikyu FROM TtoD");
        const Consignor consignor = LoadBankConsignor(123);
        return write(sql, BankRequest(FitBankConsignor(consignor), DateSerial(2023, 4, 27)));
    }
    QList<QByteArray> post(const RetransferDay& again) {
        const Consignor consignor = LoadPostConsignor();
        return write(DebitQuery(kPostOffice, {2023, 4}),
                     PostRequest(FitPostConsignor(consignor), DateSerial(2023, 4, 27), again));
    }

 private:
    QList<QByteArray> write(const QString& sql, const RequestKind& kind) {
        WriteRequest("A:\\x", gDb->OpenRecordset(sql), kind, shown);
        const std::vector<QByteArray> records = SplitDebitRecords(readFile("Drive/A/x"));
        return {records.begin(), records.end()};
    }
};

TEST_F(WrittenRequest, IsFoundSound) {
    EXPECT_EQ(Joined(Check(bank()) + Check(post({"  ", "  "})) + Check(post({"05", "20"}))),
              "request\nrequest\nrequest");
    customer("4,'ｴｸﾞﾁ',5,9900,123,1,'99',0", "700");
    EXPECT_EQ(
        Joined(Check(post({"05", "20"}))),
        "request\n2: 支店番号が 3 けた以下（123）なので、レコードが 2 行に割れている。得意先 4 の支店を 5 "
        "けたにして作り直す");
    EXPECT_EQ(admin::Run({"debit", "Drive/A/x"}), 1);
}

TEST_F(WrittenRequest, ChangedAndComeBack) {
    const struct {
        const char* what;
        std::vector<std::tuple<int, int, QByteArray>> changes;  ///< record, place, bytes
        const char* told;
    } cases[] = {
        {"come back", {{2, 112, "0"}, {3, 112, "1"}}, "result"},
        {"nothing as good as a 0",
         {{3, 112, "1"}, {4, 20, "000001000000003000000001000000000500"}},
         "result"},
        {"a sum that is not theirs",
         {{3, 112, "0"}, {4, 20, "000001000000003000000001000000000500"}},
         "result\n4: 振替済が 1件 3000円、データレコードの合計は 2件 3500円\n"
         "4: 振替不能が 1件 500円、データレコードの合計は 0件 0円"},
        {"no code",
         {{3, 112, "7"}},
         "result\n3: 結果（112桁目） 「7」 は定められた値（空白、0、1、2、3、4、8、9）にない"},
    };
    const QList<QByteArray> sound = post({"05", "20"});
    for (const auto& [what, changes, told] : cases) {
        QList<QByteArray> records = sound;
        for (const auto& [record, place, bytes] : changes)
            records[record - 1].replace(place - 1, bytes.size(), bytes);
        EXPECT_EQ(Joined(Check(records)), told) << what;
    }
}

TEST(DebitCheck, LineEnds) {
    const QByteArray record = data(5, '0');
    const std::vector<QByteArray> three{record, record, record};
    for (const QByteArray end : {"\r\n", "\n", "\r", ""})
        EXPECT_EQ(SplitDebitRecords(record + end + record + end + record + "\x1a rest"), three);
    EXPECT_TRUE(SplitDebitRecords("").empty());
    EXPECT_EQ(SplitDebitRecords(record + "2").size(), 2U);
    EXPECT_EQ(SplitDebitRecords("a\r\n\r\nb").size(), 3U) << "an empty line is a record";
}

TEST(AdminDebit, ShowsAndLeavesTheFileAlone) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("disk");
    const QByteArray clean = Header() + "\r\n" + data(1234, '1') + "\r\n" + data(5, '0') + "\r\n" +
                             Trailer({2, 1239, 1, 5, 1, 1234}) + "\r\n" + kEnd + "\r\n";
    WriteFile(path, clean);
    const Outcome outcome = RunAdmin("debit " + path);
    EXPECT_EQ(outcome.code, Clean);
    for (const char* part :
         {"     55 引落日          0427\n",
          "番号  銀行  支店  種目  口座番号  預金者名  引落金額  新規  顧客番号  結果\n",
          "   2  0005  001   1     0000007   ｱｵｷ           1234  0           77  1 資金不足\n",
          "結果ファイル: 2件 1239円\n  0 振替済: 1件 5円\n  1 資金不足: 1件 1234円\n様式どおりです。\n"})
        EXPECT_NE(outcome.said.find(part), std::string::npos) << part << " not in\n" << outcome.said;
    EXPECT_EQ(ContentsOf(path), clean);

    WriteFile(path, QByteArray(clean).replace("\xb1\xb5\xb7", "\xb1\xb0\xb7"));
    EXPECT_EQ(RunAdmin("debit " + path).code, Found);
    WriteFile(path, "\xf1\xf9\xf1");
    for (const QString& arguments : {path, folder.path(), path + "none", QString()})
        EXPECT_EQ(RunAdmin("debit " + arguments).code, Unreadable) << arguments.toStdString();
}

}  // namespace
}  // namespace akarix::admin
