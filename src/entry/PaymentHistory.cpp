#include "entry/PaymentHistory.h"

#include <QHash>
#include <array>
#include <initializer_list>

#include "billing/Tto.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/GridHead.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Format.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

enum Column { kMonth, kPrior, kGas, kSales, kPaid, kTotal };

constexpr std::array<GridHead, 6> kHeads{{
    {u"年月", 1200, AlignLeftCenter},
    {u"前月請求", 1500},
    {u"LPガス", 1500},
    {u"売上金額", 1500},
    {u"入金額", 1500},
    {u"合計金額", 1500},
}};

const QString kAmount = QStringLiteral("###,##0");

QString amountText(Currency amount) {
    return Format(amount, kAmount);
}

int addRow(FlexGrid& list) {
    const int row = list.Rows();
    list.SetRows(row + 1);
    return row;
}

void addCarriedIn(FlexGrid& list, Currency total) {
    const int row = addRow(list);
    list.SetTextMatrix(row, kMonth, QStringLiteral("繰越"));
    list.SetTextMatrix(row, kTotal, Format(total, QStringLiteral("#,##0")));
}

Currency balanceAt(std::int32_t deal, int nendo, int getudo) {
    Currency balance;
    int setByHand = 0;
    ReadLedgerHead(deal, nendo, getudo, balance, setByHand);
    return balance;
}

QString fromMonth(int nendo, int getudo) {
    return QStringLiteral(" AND    Nendo*100+Getudo>=") + NumStr(nendo * 100 + getudo);
}

// ---- the merge of ledger months and payment lines

void gatherMonths(std::int32_t deal, int nendo, int getudo) {
    gDb->Execute(QStringLiteral("INSERT  INTO TempTtoD(Nendo,Getudo,Eda,GGaku,UGaku)  SELECT "
                                "Nendo,Getudo,1,GGaku,UGaku  FROM   TtoD  WHERE  Deal=") +
                 NumStr(deal) + fromMonth(nendo, getudo));
}

void gatherPayment(const Recordset& payment, Date hizuke, std::int16_t eda) {
    const std::int32_t dno = longOf(payment[QStringLiteral("Dno")]);
    Recordset row = gDb->OpenRecordset(QStringLiteral("SELECT * FROM TempTtoD  WHERE Nendo =") +
                                       NumStr(Year(hizuke)) + QStringLiteral(" AND   Getudo=") +
                                       NumStr(Month(hizuke)) + QStringLiteral(" AND   Hi=") +
                                       NumStr(Day(hizuke)) + QStringLiteral(" AND   Eda   =") + NumStr(eda) +
                                       QStringLiteral(" AND   Dno   =") + NumStr(dno));
    if (row.Eof()) {
        row.AddNew();
        row.Fields(QStringLiteral("Dno")) = dno;
        row.Fields(QStringLiteral("Nendo")) = Year(hizuke);
        row.Fields(QStringLiteral("Getudo")) = Month(hizuke);
        row.Fields(QStringLiteral("Hi")) = Day(hizuke);
        row.Fields(QStringLiteral("Eda")) = eda;
    } else {
        row.Edit();
    }
    row.Fields(QStringLiteral("NGaku")) = moneyOf(payment[QStringLiteral("Gaku")]);
    row.Update();
    row.Close();
}

void gatherPayments(std::int32_t deal, int nendo, int getudo) {
    Recordset payments =
        gDb->OpenRecordset(QStringLiteral("SELECT * FROM Dny  WHERE Deal=") + NumStr(deal) +
                           QStringLiteral(" AND   Nendo*100+Getudo>=") + NumStr(nendo * 100 + getudo) +
                           QStringLiteral(" ORDER BY Nendo,Getudo"));
    QHash<int, std::int16_t> linesOfMonth;
    for (; !payments.Eof(); payments.MoveNext()) {
        const Date hizuke = dateOf(payments[QStringLiteral("Hizuke")]);
        gatherPayment(payments, hizuke, ++linesOfMonth[Year(hizuke) * 100 + Month(hizuke)]);
    }
    payments.Close();
}

}  // namespace

LedgerMonth LatestLedgerMonth() {
    LedgerMonth month;
    Recordset latest =
        gDb->OpenRecordset(QStringLiteral("SELECT TOP 1 * FROM TtoD ORDER BY Nendo*100+Getudo DESC"));
    if (!latest.Eof()) {
        month = {integerOf(latest[QStringLiteral("Nendo")]), integerOf(latest[QStringLiteral("Getudo")])};
    }
    latest.Close();
    return month;
}

void EmptyHistory(FlexGrid& list) {
    SetHeads(list, kHeads);
}

void ShowLedgerHistory(FlexGrid& list, std::int32_t deal, int nendo, int getudo) {
    Currency total = balanceAt(deal, nendo, getudo);
    EmptyHistory(list);
    Recordset months = gDb->OpenRecordset(
        QStringLiteral(" SELECT Nendo,Getudo,ZenkaiGaku,GGaku,UGaku,NGaku  FROM   TtoD  WHERE  Deal=") +
        NumStr(deal) + fromMonth(nendo, getudo));
    if (!months.Eof()) addCarriedIn(list, total);
    for (; !months.Eof(); months.MoveNext()) {
        const auto money = [&months](const char16_t* column) {
            return moneyOf(months[QString::fromUtf16(column)]);
        };
        const Currency gas = money(u"GGaku");
        const Currency sales = money(u"UGaku");
        const Currency paid = money(u"NGaku");
        total += gas + sales - paid;
        const int row = addRow(list);
        list.SetTextMatrix(
            row, kMonth,
            NumStr(months[QStringLiteral("Nendo")]) + u'/' + NumStr(months[QStringLiteral("Getudo")]));
        int column = kPrior;
        for (const Currency amount : {money(u"ZenkaiGaku"), gas, sales, paid, total}) {
            list.SetTextMatrix(row, column++, amountText(amount));
        }
    }
    months.Close();
}

void ShowPaymentHistory(FlexGrid& list, std::int32_t deal, int nendo, int getudo) {
    gDb->Execute(QStringLiteral("DELETE FROM TempTtoD"));
    const Currency carriedIn = balanceAt(deal, nendo, getudo);
    gatherMonths(deal, nendo, getudo);
    gatherPayments(deal, nendo, getudo);

    EmptyHistory(list);
    addCarriedIn(list, carriedIn);
    Recordset lines = gDb->OpenRecordset(QStringLiteral("SELECT * FROM TempTtoD ORDER BY Nendo,Getudo,Eda"));
    QString yearAbove;
    for (; !lines.Eof(); lines.MoveNext()) {
        const int row = addRow(list);
        const QString year = NumStr(lines[QStringLiteral("Nendo")]);
        if (year != yearAbove) {
            list.SetTextMatrix(row, 0, year);
            list.SetTextMatrix(row, 1, NumStr(lines[QStringLiteral("Getudo")]));
            yearAbove = year;
        }
        list.SetTextMatrix(
            row, 4,
            amountText(moneyOf(lines[QStringLiteral("GGaku")]) + moneyOf(lines[QStringLiteral("UGaku")])));
        list.SetTextMatrix(row, 5, amountText(moneyOf(lines[QStringLiteral("NGaku")])));
    }
    lines.Close();
}

}  // namespace akarix
