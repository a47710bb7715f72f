#include "debit/DebitQuery.h"

#include "support/ScratchStore.h"
#include "values/NumStr.h"

namespace akarix {
namespace {

/// The rows of April 2023 as "customer|balance|amount|account".
QStringList asked(int bank) {
    QStringList lines;
    Recordset set = gDb->OpenRecordset(DebitQuery(bank, 2023, 4));
    for (; !set.Eof(); set.MoveNext()) {
        const DebitRow row = ReadDebitRow(set);
        lines += QStringLiteral("%1|%2|%3|%4-%5-%6-%7 %8")
                     .arg(row.Deal)
                     .arg(NumStr(row.tGaku), NumStr(DebitAmount(row.tGaku, row.DiscGaku)))
                     .arg(row.Bnk)
                     .arg(row.Stn)
                     .arg(row.Kind)
                     .arg(row.Koza, row.Kana);
    }
    return lines;
}

void customer(const QString& master, const QString& ledger) {
    gDb->Execute(QStringLiteral("INSERT INTO Deal(Code,Kana,Rte,Haisou,Bnk,Stn,Kind,Koza,DiscGaku) VALUES(") +
                 master + QStringLiteral(")"));
    gDb->Execute(QStringLiteral("INSERT INTO TtoD(Nendo,Getudo,Deal,ZenkaiGaku,Gaku,NGaku) VALUES(2023,4,") +
                 ledger + QStringLiteral(")"));
}

TEST(DebitQuery, OneRowPerAccountInTheOrderOfTheRound) {
    const ScratchStore store;
    customer("1,'ｱ',2,10,5,1,1,'1234567',0", "1,1000,500,200");
    customer("2,'ｲ',1,30,5,1,1,'7654321',5000", "2,0,8000,0");
    customer("3,'ｳ',1,40,5,1,1,'1234567',0", "3,0,700,0");
    customer("4,'ｴ',1,20,5,1,1,'0000004',5000", "4,0,3000,0");
    customer("5,'ｵ',1,25,5,1,1,'0000004',0", "5,0,100,200");  // has paid too much: not taken off
    customer("6,'ｶ',1,5,5,1,1,'0000006',0", "6,0,100,100");   // owes nothing
    customer("7,'ｷ',1,5,9900,10010,1,'12345678',5000", "7,0,5000,0");
    gDb->Execute("INSERT INTO TtoD(Nendo,Getudo,Deal,Gaku) VALUES(2023,3,6,999)");
    EXPECT_EQ(asked(5), (QStringList{"4|3000|3000|5-1-1-0000004 ｴ", "2|8000|5000|5-1-1-7654321 ｲ",
                                     "1|2000|2000|5-1-1-1234567 ｱ"}));
    EXPECT_EQ(asked(kPostOffice), QStringList{"7|5000|5000|9900-10010-1-12345678 ｷ"});
    EXPECT_EQ(asked(0), QStringList());
}

}  // namespace
}  // namespace akarix
