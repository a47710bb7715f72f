#include "debit/BankStatement.h"

#include "debit/DebitQuery.h"
#include "output/PrintRun.h"
#include "output/PrintTrap.h"
#include "platform/runtime/Format.h"
#include "store/Consignor.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

constexpr int kPageLimit = 43;  // the line that no longer stands on the page
constexpr int kBaseRow = 4;
constexpr int kEraBase = 1988;  // the sheet counts its years by one era, whatever the screens do

QString nameOf(const QString& mode, int bank) {
    if (mode == u"Yubin") return QStringLiteral("郵便局");
    Consignor consignor;
    LoadBankConsignor(bank, consignor);
    if (HasText(consignor.BkName)) return consignor.BkName;
    return QStringLiteral("銀行コード : ") + NumStr(bank);
}

QString accountOf(const DebitRow& row) {
    const QStringList parts{Format(row.Bnk, QStringLiteral("0000")), Format(row.Stn, QStringLiteral("000")),
                            NumStr(row.Kind), Format(row.Koza, QStringLiteral("0000000"))};
    return parts.join(u'-');
}

}  // namespace

BankStatement::BankStatement(const QString& mode, int bank, int nendo, int getudo)
    : bankName_(nameOf(mode, bank)),
      month_(QStringLiteral("平成%1年%2月分").arg(nendo - kEraBase).arg(getudo)) {}

void BankStatement::ClrDetail() {
    for (const char16_t* block : {u"A5:AH46", u"T47", u"AA47"}) {
        ExcelCell(QString::fromUtf16(block), {});
    }
}

void BankStatement::PrintOutHead(int page) {
    ExcelCell(QStringLiteral("A1"), bankName_);
    ExcelCell(QStringLiteral("AC2"), month_);
    ExcelCell(QStringLiteral("AM2"), NumStr(page) + QStringLiteral("ﾍﾟｰｼﾞ"));
}

void BankStatement::PrintOutDetail(int row, Recordset& set) {
    const DebitRow debit = ReadDebitRow(set);
    const auto put = [row](const char16_t* column, const QString& text) {
        ExcelCell(QString::fromUtf16(column) + NumStr(row), text);
    };
    put(u"A", NumStr(debit.Deal));
    put(u"E", accountOf(debit));
    put(u"M", debit.Kana);
    put(u"T", GetDealName(debit.Deal));
    put(u"AA", NumStr(debit.tGaku));
    ++count_;
    total_ += debit.tGaku;
}

void BankStatement::PrintOutDetailGokei(int /*line*/, int /*firstRow*/, int /*page*/) {
    ExcelCell(QStringLiteral("T47"), NumStr(count_) + QStringLiteral("件"));
    ExcelCell(QStringLiteral("AA47"), NumStr(total_));
}

void PrintBankStatement(int bank, int nendo, int getudo) {
    TrapPrinting([=] {
        const PrintRun run(QStringLiteral("口座振替明細表"));
        Recordset set = gDb->OpenRecordset(DebitQuery(bank, nendo, getudo));
        if (set.Eof()) return;
        BankStatement statement(QStringLiteral("Bnk"), bank, nendo, getudo);
        ExcelOpenPaged(QStringLiteral("口座振替明細表"), kPageLimit, kBaseRow);
        SetReport(&statement, std::move(set));
        ExcelRunPaged();
    });
}

}  // namespace akarix
