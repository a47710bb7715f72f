#include "debit/DebitReader.h"

#include "debit/DebitPath.h"
#include "debit/DebitQuery.h"
#include "debit/DebitResult.h"
#include "debit/PaymentPosting.h"
#include "debit/TrapDebit.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/CInt.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Input.h"
#include "platform/runtime/Open.h"
#include "store/Consignor.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

struct Disk {
    QString bank;
    QString nendo;
    QString getudo;
};

bool isRead(const Disk& disk) {
    Recordset log = gDb->OpenRecordset(QStringLiteral("SELECT * FROM FDLog  WHERE Bnk   =") + disk.bank +
                                       QStringLiteral(" AND   Nendo =") + disk.nendo +
                                       QStringLiteral(" AND   Getudo=") + disk.getudo);
    const bool found = !log.Eof();
    log.Close();
    return found;
}

void logDisk(const Disk& disk) {
    gDb->Execute(QStringLiteral("INSERT INTO FDLog(Bnk,nendo,Getudo) VALUES(") + disk.bank + u',' +
                 disk.nendo + u',' + disk.getudo + u')');
}

struct Counts {
    int paid = 0;
    int total = 0;
};

Counts postResults(Date debited) {
    Counts counts;
    for (QString record = Input(kDebitFile); !EndsResults(record); record = Input(kDebitFile)) {
        const DebitResult result = ReadResult(record);
        ++counts.total;
        if (result.code != 0) continue;
        PostPayment(result.Deal, debited, result.amount);
        ++counts.paid;
    }
    return counts;
}

QString wordsFor(const Counts& counts) {
    const QString numbers = NumStr(counts.paid) + QStringLiteral(" / ") + NumStr(counts.total);
    // Equality first: a disk without any record is complete.
    if (counts.paid == counts.total) return numbers + QStringLiteral(" 全件　完了しました。");
    if (counts.paid < 1 || counts.total < 1) return numbers + QStringLiteral(" 入金が確認出来ませんでした。");
    return numbers + QStringLiteral(" 件　完了しました。");
}

void read(const QString& path, const QString& bank, const ShowProgress& progress) {
    const Date today = Today();
    Open(path, OpenMode::Input, kDebitFile);
    const Date debited = ResultDate(Input(kDebitFile), today);
    const Disk disk{bank, NumStr(Year(debited)), NumStr(Month(debited))};
    if (!AskConfirm(QStringLiteral("処理年=") + disk.nendo + QStringLiteral(" 月=") + disk.getudo +
                        QStringLiteral(" は正しいですか？"),
                    QStringLiteral("はい"), QStringLiteral("いいえ"))) {
        Close(kDebitFile);
        return;
    }
    if (isRead(disk)) {
        ShowAlert(QStringLiteral("このフロッピーは既に読み込み完了しています。"));
        Close(kDebitFile);
        progress({});
        return;
    }
    const Counts counts = postResults(debited);
    Close(kDebitFile);
    logDisk(disk);
    ShowAlert(wordsFor(counts));
    progress({});
}

void readDisk(const Consignor& consignor, int bank, const ShowProgress& progress) {
    if (!AskConfirm(QStringLiteral("ディスクを読みこみますか？"), QStringLiteral("はい"),
                    QStringLiteral("いいえ"))) {
        return;
    }
    progress(QStringLiteral("ディスク読込中!"));
    TrapDebit([&] { read(SplitDebitPath(consignor.fName).whole(), NumStr(bank), progress); });
}

}  // namespace

void ReadBankResult(const QString& bankCode, const ShowProgress& progress) {
    const std::int16_t bank = CInt(KeepNumeric(bankCode));
    Consignor consignor;
    LoadBankConsignor(bank, consignor);
    readDisk(consignor, bank, progress);
}

void ReadPostResult(const ShowProgress& progress) {
    Consignor consignor;
    LoadPostConsignor(consignor);
    readDisk(consignor, kPostOffice, progress);
}

}  // namespace akarix
