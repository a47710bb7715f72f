#include "entry/PaymentHistory.h"

#include <QHash>
#include <initializer_list>

#include "billing/Tto.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "toolkit/GridColumns.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

enum Column { kMonth, kPrior, kGas, kSales, kPaid, kTotal };

const GridColumns kColumns = {
    {u"年月", 1200, AlignLeftCenter},
    {u"前月請求", 1500},
    {u"LPガス", 1500},
    {u"売上金額", 1500},
    {u"入金額", 1500},
    {u"合計金額", 1500},
};

const QString kAmount = u"###,##0"_s;

QString AmountText(Currency amount) {
    return Format(amount, kAmount);
}

void AddCarriedIn(FlexGrid& list, Currency total) {
    const int row = AddRow(list);
    list.SetTextMatrix(row, kMonth, u"繰越"_s);
    list.SetTextMatrix(row, kTotal, Format(total, u"#,##0"_s));
}

QString FromMonth(BillingMonth month) {
    return u" AND    Nendo*100+Getudo>="_s + NumStr(month.key());
}

// ---- the merge of ledger months and payment lines

void GatherMonths(std::int32_t deal, BillingMonth month) {
    gDb->Execute(
        u"INSERT  INTO TempTtoD(Nendo,Getudo,Eda,GGaku,UGaku)  SELECT "
        "Nendo,Getudo,1,GGaku,UGaku  FROM   TtoD  WHERE  Deal="_s +
        NumStr(deal) + FromMonth(month));
}

void GatherPayment(const Recordset& payment, Date hizuke, std::int16_t eda) {
    const std::int32_t dno = LongOf(payment[u"Dno"_s]);
    Recordset row = gDb->OpenRecordset(u"SELECT * FROM TempTtoD  WHERE Nendo ="_s + NumStr(Year(hizuke)) +
                                       u" AND   Getudo="_s + NumStr(Month(hizuke)) + u" AND   Hi="_s +
                                       NumStr(Day(hizuke)) + u" AND   Eda   ="_s + NumStr(eda) +
                                       u" AND   Dno   ="_s + NumStr(dno));
    if (row.Eof()) {
        row.AddNew();
        row.Fields(u"Dno"_s) = dno;
        row.Fields(u"Nendo"_s) = Year(hizuke);
        row.Fields(u"Getudo"_s) = Month(hizuke);
        row.Fields(u"Hi"_s) = Day(hizuke);
        row.Fields(u"Eda"_s) = eda;
    } else {
        row.Edit();
    }
    row.Fields(u"NGaku"_s) = MoneyOf(payment[u"Gaku"_s]);
    row.Update();
    row.Close();
}

void GatherPayments(std::int32_t deal, BillingMonth month) {
    Recordset payments = gDb->OpenRecordset(u"SELECT * FROM Dny  WHERE Deal="_s + NumStr(deal) +
                                            u" AND   Nendo*100+Getudo>="_s + NumStr(month.key()) +
                                            u" ORDER BY Nendo,Getudo"_s);
    QHash<int, std::int16_t> linesOfMonth;
    for (; !payments.Eof(); payments.MoveNext()) {
        const Date hizuke = DateOf(payments[u"Hizuke"_s]);
        GatherPayment(payments, hizuke, ++linesOfMonth[Year(hizuke) * 100 + Month(hizuke)]);
    }
    payments.Close();
}

}  // namespace

BillingMonth LatestLedgerMonth() {
    BillingMonth month;
    Recordset latest = gDb->OpenRecordset(u"SELECT TOP 1 * FROM TtoD ORDER BY Nendo*100+Getudo DESC"_s);
    if (!latest.Eof()) month = {IntegerOf(latest[u"Nendo"_s]), IntegerOf(latest[u"Getudo"_s])};
    latest.Close();
    return month;
}

void EmptyHistory(FlexGrid& list) {
    SetColumns(list, kColumns);
}

void ShowLedgerHistory(FlexGrid& list, std::int32_t deal, BillingMonth month) {
    Currency total = ReadLedgerHead(deal, month).zenkaiGaku;
    EmptyHistory(list);
    Recordset months =
        gDb->OpenRecordset(u" SELECT Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,NGaku  FROM   TtoD  WHERE  Deal="_s +
                           NumStr(deal) + FromMonth(month));
    if (!months.Eof()) AddCarriedIn(list, total);
    for (; !months.Eof(); months.MoveNext()) {
        const auto money = [&months](const char16_t* column) {
            return MoneyOf(months[QString::fromUtf16(column)]);
        };
        const Currency gas = money(u"GGaku");
        const Currency sales = money(u"UGaku");
        const Currency paid = money(u"NGaku");
        total += gas + sales - paid;
        const int row = AddRow(list);
        list.SetTextMatrix(row, kMonth, NumStr(months[u"Nendo"_s]) + u'/' + NumStr(months[u"Getudo"_s]));
        int column = kPrior;
        for (const Currency amount : {money(u"ZenkaiGaku"), gas, sales, paid, total})
            list.SetTextMatrix(row, column++, AmountText(amount));
    }
    months.Close();
}

void ShowPaymentHistory(FlexGrid& list, std::int32_t deal, BillingMonth month) {
    gDb->Execute(u"DELETE FROM TempTtoD"_s);
    const Currency carriedIn = ReadLedgerHead(deal, month).zenkaiGaku;
    GatherMonths(deal, month);
    GatherPayments(deal, month);

    EmptyHistory(list);
    AddCarriedIn(list, carriedIn);
    Recordset lines = gDb->OpenRecordset(u"SELECT * FROM TempTtoD ORDER BY Nendo,Getudo,Eda"_s);
    QString yearAbove;
    for (; !lines.Eof(); lines.MoveNext()) {
        const int row = AddRow(list);
        const QString year = NumStr(lines[u"Nendo"_s]);
        if (year != yearAbove) {
            list.SetTextMatrix(row, 0, year);
            list.SetTextMatrix(row, 1, NumStr(lines[u"Getudo"_s]));
            yearAbove = year;
        }
        list.SetTextMatrix(row, 4, AmountText(MoneyOf(lines[u"GGaku"_s]) + MoneyOf(lines[u"UGaku"_s])));
        list.SetTextMatrix(row, 5, AmountText(MoneyOf(lines[u"NGaku"_s])));
    }
    lines.Close();
}

}  // namespace akarix
