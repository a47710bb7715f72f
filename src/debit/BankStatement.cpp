#include "debit/BankStatement.h"

#include "debit/DebitQuery.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "store/Consignor.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/Dates.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

constexpr int kPageLimit = 43;  // the line that no longer stands on the page
constexpr int kBaseRow = 4;

QString NameOf(const QString& mode, int bank) {
    if (mode == u"Yubin") return u"郵便局"_s;
    const Consignor consignor = LoadBankConsignor(bank);
    if (HasText(consignor.BkName)) return consignor.BkName;
    return u"銀行コード : "_s + NumStr(bank);
}

QString AccountOf(const DebitRow& row) {
    const QStringList parts{Format(row.Bnk, u"0000"_s), Format(row.Stn, u"000"_s), NumStr(row.Kind),
                            Format(row.Koza, u"0000000"_s)};
    return parts.join(u'-');
}

}  // namespace

// The sheet counts its years by one era, whatever the screens do.
BankStatement::BankStatement(const QString& mode, int bank, BillingMonth month)
    : bankName_(NameOf(mode, bank)),
      month_(u"平成%1年%2月分"_s.arg(month.nendo - kEraBase).arg(month.getudo)) {}

void BankStatement::ClrDetail() {
    for (const char16_t* block : {u"A5:AH46", u"T47", u"AA47"})
        ExcelCell(QString::fromUtf16(block), {});
}

void BankStatement::PrintOutHead(int page) {
    ExcelCell(u"A1"_s, bankName_);
    ExcelCell(u"AC2"_s, month_);
    ExcelCell(u"AM2"_s, NumStr(page) + u"ﾍﾟｰｼﾞ"_s);
}

void BankStatement::PrintOutDetail(int row, Recordset& set) {
    const DebitRow debit = ReadDebitRow(set);
    const auto put = [row](const char16_t* column, const QString& text) {
        ExcelCell(QString::fromUtf16(column) + NumStr(row), text);
    };
    put(u"A", NumStr(debit.Deal));
    put(u"E", AccountOf(debit));
    put(u"M", debit.Kana);
    put(u"T", GetDealName(debit.Deal));
    put(u"AA", NumStr(debit.tGaku));
    ++count_;
    total_ += debit.tGaku;
}

void BankStatement::PrintOutDetailGokei(int /*line*/, int /*firstRow*/, int /*page*/) {
    ExcelCell(u"T47"_s, NumStr(count_) + u"件"_s);
    ExcelCell(u"AA47"_s, NumStr(total_));
}

void PrintBankStatement(int bank, BillingMonth month) {
    TrapPrinting([=] {
        const PrintRun run(u"口座振替明細表"_s);
        Recordset set = gDb->OpenRecordset(DebitQuery(bank, month));
        if (set.Eof()) return;
        BankStatement statement(u"Bnk"_s, bank, month);
        ExcelOpenPaged(u"口座振替明細表"_s, kPageLimit, kBaseRow);
        SetReport(&statement, std::move(set));
        ExcelRunPaged();
    });
}

}  // namespace akarix
