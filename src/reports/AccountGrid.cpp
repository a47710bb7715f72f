#include "reports/AccountGrid.h"

#include <array>

#include "platform/forms/FlexGrid.h"
#include "platform/forms/GridHead.h"
#include "platform/runtime/Format.h"
#include "reports/CustomerAccount.h"
#include "store/FieldValue.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

enum Column {
    kColDno,
    kColDate,
    kColHinNamae,
    kColMeter,
    kColSuu,
    kColTanka,
    kColGaku,
    kColPaid,
    kColBalance,
    kColKind,
    kColumns
};

constexpr std::array<GridHead, kColumns> kHeads{{
    {u"伝No", 1000},
    {u"日付", 1400, AlignLeftCenter},
    {u"品名", 4900, AlignLeftCenter},
    {u"指針", 1200},
    {u"数量", 800},
    {u"単価", 1200},
    {u"金額", 1400},
    {u"入金", 1400},
    {u"残高", 1600},
    {u"", 0},
}};

const QString kYen = QStringLiteral("###,##0");

/// Writes the lines of a set one under the other and keeps the balance. The columns are found once.
class LineWriter {
 public:
    LineWriter(Recordset& set, FlexGrid& list, Currency opening)
        : list_(list),
          dno_(set.Fields(QStringLiteral("Dno"))),
          nendo_(set.Fields(QStringLiteral("Nendo"))),
          getudo_(set.Fields(QStringLiteral("Getudo"))),
          kubun_(set.Fields(QStringLiteral("Kubun"))),
          hizuke_(set.Fields(QStringLiteral("Hizuke"))),
          meter_(set.Fields(QStringLiteral("KonkaiMeter"))),
          name_(set.Fields(QStringLiteral("HinNamae"))),
          suu_(set.Fields(QStringLiteral("Suu"))),
          tanka_(set.Fields(QStringLiteral("Tanka"))),
          gaku_(set.Fields(QStringLiteral("Gaku"))),
          payment_(set.Fields(QStringLiteral("NFLG"))),
          balance_(opening) {}

    void write(int row) {
        row_ = row;
        put(kColHinNamae, NullToEmpty(name_.Value()));
        if (integerOf(payment_.Value()) == 1) {
            writePayment();
        } else if (integerOf(kubun_.Value()) == CustomerAccount::kGas) {
            writeGas();
        } else {
            writeSlip();
        }
        put(kColBalance, Format(balance_, QStringLiteral("##,###,##0")));
    }

 private:
    void writePayment() {
        const QString paid = Format(moneyOf(gaku_.Value()), kYen);
        putNumber();
        put(kColDate, year() + Format(getudo_.Value(), QStringLiteral("00")));
        put(kColPaid, paid);
        putKind(CustomerAccount::kPayment);
        // The balance goes down by what the line shows.
        balance_ -= ToCurrency(paid);
    }
    void writeGas() {
        put(kColDate, year() + NumStr(getudo_.Value()));
        put(kColMeter, Format(moneyOf(meter_.Value()), QStringLiteral("##,##0.0")));
        putKind(CustomerAccount::kGas);
        charge();
    }
    void writeSlip() {
        putNumber();
        put(kColDate, NullToEmpty(hizuke_.Value()));
        put(kColSuu, Format(moneyOf(suu_.Value()), QStringLiteral("#,###")));
        put(kColTanka, Format(moneyOf(tanka_.Value()), QStringLiteral("###,###")));
        putKind(CustomerAccount::kSlip);
        charge();
    }
    void charge() {
        const Currency amount = moneyOf(gaku_.Value());
        put(kColGaku, Format(amount, kYen));
        balance_ += amount;
    }

    QString year() const { return NumStr(nendo_.Value()) + u'/'; }
    void putNumber() { put(kColDno, NumStr(longOf(dno_.Value()))); }
    void putKind(CustomerAccount::Kind kind) { put(kColKind, NumStr(std::int32_t{kind})); }
    void put(int column, const QString& text) { list_.SetTextMatrix(row_, column, text); }

    FlexGrid& list_;
    const Field &dno_, &nendo_, &getudo_, &kubun_, &hizuke_, &meter_, &name_, &suu_, &tanka_, &gaku_,
        &payment_;
    Currency balance_;
    int row_ = 0;
};

}  // namespace

void DefineAccountColumns(FlexGrid& list) {
    SetHeads(list, kHeads);
}

void ShowAccount(const CustomerAccount& account, FlexGrid& list) {
    constexpr int kFirstLine = 2;  // below the head and the opening balance
    const Currency opening = account.opening();
    Recordset set = account.lines();
    int count = 0;
    if (!set.Eof()) {
        set.MoveLast();
        count = set.RecordCount();
        set.MoveFirst();
    }
    list.SetRows(1);
    list.SetRows(kFirstLine + count);
    list.SetTextMatrix(1, kColBalance, Format(opening, QStringLiteral("#,##0")));
    LineWriter writer(set, list, opening);
    for (int row = kFirstLine; !set.Eof(); ++row, set.MoveNext()) {
        writer.write(row);
    }
    set.Close();
}

AccountRow ReadAccountRow(const FlexGrid& list, int row) {
    const int kind = static_cast<int>(NumVal(list.TextMatrix(row, kColKind)));
    return {kind, list.TextMatrix(row, kColDno), list.TextMatrix(row, kColDate)};
}

}  // namespace akarix
