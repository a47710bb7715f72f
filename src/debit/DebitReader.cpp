#include "debit/DebitReader.h"

#include "debit/DebitPath.h"
#include "debit/DebitQuery.h"
#include "debit/DebitResult.h"
#include "debit/PaymentPosting.h"
#include "debit/TrapDebit.h"
#include "dialogs/AskConfirm.h"
#include "dialogs/ShowAlert.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"
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

bool IsRead(const Disk& disk) {
    Recordset log = gDb->OpenRecordset(u"SELECT * FROM FDLog  WHERE Bnk   ="_s + disk.bank +
                                       u" AND   Nendo ="_s + disk.nendo + u" AND   Getudo="_s + disk.getudo);
    const bool found = !log.Eof();
    log.Close();
    return found;
}

void LogDisk(const Disk& disk) {
    gDb->Execute(u"INSERT INTO FDLog(Bnk,nendo,Getudo) VALUES("_s + disk.bank + u',' + disk.nendo + u',' +
                 disk.getudo + u')');
}

struct Counts {
    int paid = 0;
    int total = 0;
};

Counts PostResults(Date debited) {
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

QString WordsFor(const Counts& counts) {
    const QString numbers = NumStr(counts.paid) + u" / "_s + NumStr(counts.total);
    // Equality first: a disk without any record is complete.
    if (counts.paid == counts.total) return numbers + u" 全件　完了しました。"_s;
    if (counts.paid < 1 || counts.total < 1) return numbers + u" 入金が確認出来ませんでした。"_s;
    return numbers + u" 件　完了しました。"_s;
}

void Read(const QString& path, const QString& bank, const ShowProgress& progress) {
    const Date today = Today();
    Open(path, OpenMode::Input, kDebitFile);
    const Date debited = ResultDate(Input(kDebitFile), today);
    const Disk disk{bank, NumStr(Year(debited)), NumStr(Month(debited))};
    if (!AskConfirm(u"処理年="_s + disk.nendo + u" 月="_s + disk.getudo + u" は正しいですか？"_s, u"はい"_s,
                    u"いいえ"_s)) {
        Close(kDebitFile);
        return;
    }
    if (IsRead(disk)) {
        ShowAlert(u"このフロッピーは既に読み込み完了しています。"_s);
        Close(kDebitFile);
        progress({});
        return;
    }
    const Counts counts = PostResults(debited);
    Close(kDebitFile);
    LogDisk(disk);
    ShowAlert(WordsFor(counts));
    progress({});
}

void ReadDisk(const Consignor& consignor, int bank, const ShowProgress& progress) {
    if (!AskConfirm(u"ディスクを読みこみますか？"_s, u"はい"_s, u"いいえ"_s)) return;
    progress(u"ディスク読込中!"_s);
    TrapDebit([&] { Read(SplitDebitPath(consignor.fName).whole(), NumStr(bank), progress); });
}

}  // namespace

void ReadBankResult(const QString& bankCode, const ShowProgress& progress) {
    const std::int16_t bank = CInt(KeepNumeric(bankCode));
    ReadDisk(LoadBankConsignor(bank), bank, progress);
}

void ReadPostResult(const ShowProgress& progress) {
    ReadDisk(LoadPostConsignor(), kPostOffice, progress);
}

}  // namespace akarix
