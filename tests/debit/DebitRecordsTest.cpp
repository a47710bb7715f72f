#include "debit/DebitRecords.h"

#include "debit/BankDebitFile.h"
#include "debit/Dealer.h"
#include "debit/DebitQuery.h"
#include "debit/PostDebitFile.h"
#include "store/Consignor.h"

namespace akarix {
namespace {

const Date kCreation = DateSerial(2023, 4, 5);

QByteArray Golden(const char* name) {
    QFile file(QString(AKARIX_TEST_DATA "/") + name);
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    return file.readAll();
}

using DebitFile = DebitTest;

TEST_F(DebitFile, OfABank) {
    customer("1,'ｱｵｷ ﾀﾛｳ',10,123,5,1,'1234567',0", "5307");
    customer("2,'ｲﾉｳｴ(ｺﾄﾞﾓ',20,123,5,1,'7654321',0", "3000");
    customer("3,'ｲﾉｳｴ',1,123,5,1,'7654321',700",
             "1500");                                   // shares the account; first in the round, not in code
    customer("4,'ｳｴﾀﾞ',5,123,12,2,'12',5000", "8000");  // asked for the fixed amount, first in the round
    customer("5,'ｴｸﾞﾁ',50,123,5,1,'1234567890',5000", "3000");
    customer("6,'オオノ商会',60,123,5,1,'66',0", "1000");
    customer("70,'ｶﾄｳ ｶﾅﾌﾘｶﾞﾅｶﾞ30ｼﾞﾕｳﾓｼﾞﾁﾖｳﾄﾞABCX',70,123,32767,12,'77',0",
             "12345678901");                                         // none of it fits
    customer("8,'ｷ𠮷ﾗ',80,123,5,1,NULL,0", "8");                     // two marks: the record keeps its length
    customer("80,'ｷﾑﾗ ｼﾞﾛｳ',81,123,5,2,'1234567',0", "1234567890");  // the first one's number, another kind
    customer("9,'ｸﾛﾀﾞ',90,123,5,1,'7654321',0", "-200");             // has paid too much: not taken off
    customer("10,'ｹﾝﾓﾁ',95,123,5,1,'99',0", "0");
    customer("11,'ｺﾊﾞ',99,124,5,1,'11',0", "900");  // another bank's
    // The monthly query with the amount of the bill, as the bank's total counts it.
    const QString sql = DebitQuery(123, {2023, 4}).replace(" FROM TtoD", ",800 AS Seikyu FROM TtoD");
    const Consignor bank = LoadBankConsignor(123);
    const DebitTotals totals = WriteRequest("A:\\FURIKAE", gDb->OpenRecordset(sql),
                                            BankRequest(FitBankConsignor(bank), kCreation), shown);
    EXPECT_EQ(readFile("Drive/A/FURIKAE"), Golden("bank.request"));
    EXPECT_EQ(totals.count, 8);
    EXPECT_EQ(progress.first(), "1 / 8");
    EXPECT_EQ(progress.last(), "8 / 8");
}

TEST_F(DebitFile, OfThePostOffice) {
    customer("1,'ｱｵｷ ﾀﾛｳ',10,9900,10010,1,'12345678',0", "5307");
    customer("2,'ｲﾉｳｴ(ｺﾄﾞﾓ',20,9900,10010,1,'76543219',0", "3000");
    customer("3,'ｲﾉｳｴ',1,9900,10010,1,'76543219',0",
             "1500");                                     // shares the account, before the other in the round
    customer("4,'ｳｴﾀﾞ',40,9900,12,1,'12',5000", "8000");  // an office number without its own form
    customer("5,'ｴｸﾞﾁ',50,9900,1234,1,'1234567890',5000", "3000");
    customer("6,'ｵｵﾉ',60,9900,123,1,'12345678',0", "9876543210");  // nor has this one
    const Consignor post = LoadPostConsignor();
    WriteRequest("A:\\x", gDb->OpenRecordset(DebitQuery(kPostOffice, {2023, 4})),
                 PostRequest(FitPostConsignor(post), kCreation, {"05", "20"}), shown);
    EXPECT_EQ(readFile("Drive/A/x"), Golden("post.request"));
}

/// What does not fit: names lose their far end, numbers their high digits.
TEST(DebitRecords, HeadersOfLongTexts) {
    Consignor wide{"12345678901",
                   QString(40, 'I').append('X'),
                   "f",
                   "12345",
                   "ｱBCDEFGHIJKLMNOP",
                   "1234",
                   "abcdefghijklmnopq",
                   "12",
                   "123456789",
                   {},
                   {},
                   {}};
    const QString name(40, 'I');
    const QString blanks(17, ' ');
    EXPECT_EQ(BankHeader(FitBankConsignor(wide), kCreation),
              "19102345678901" + name + "04052345BCDEFGHIJKLMNOP234cdefghijklmnopq23456789" + blanks);
    EXPECT_EQ(PostHeader(FitPostConsignor(wide), kCreation, {"  ", "  "}),
              "121   45678901" + name + "04052345ｱBCDEFGHIJKLMNO234" + blanks + "456789" + blanks);
    wide.Syurui.clear();
    EXPECT_EQ(BankHeader(FitBankConsignor(wide), kCreation).mid(95, 2), " 3");
}

}  // namespace
}  // namespace akarix
