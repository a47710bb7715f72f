#include "reports/AccountGrid.h"

#include "platform/runtime/Format.h"
#include "reports/CustomerAccount.h"
#include "store/FieldValue.h"
#include "toolkit/GridColumns.h"
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
    kColKind
};

const GridColumns kColumns = {
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
};

const QString kYen = u"###,##0"_s;

/// Writes the lines of a set one under the other and keeps the balance. The columns are found once.
class LineWriter {
 public:
    LineWriter(Recordset& set, FlexGrid& list, Currency opening)
        : list_(list),
          dno_(set.Fields(u"Dno"_s)),
          nendo_(set.Fields(u"Nendo"_s)),
          getudo_(set.Fields(u"Getudo"_s)),
          kubun_(set.Fields(u"Kubun"_s)),
          hizuke_(set.Fields(u"Hizuke"_s)),
          meter_(set.Fields(u"KonkaiMeter"_s)),
          name_(set.Fields(u"HinNamae"_s)),
          suu_(set.Fields(u"Suu"_s)),
          tanka_(set.Fields(u"Tanka"_s)),
          gaku_(set.Fields(u"Gaku"_s)),
          payment_(set.Fields(u"NFLG"_s)),
          balance_(opening) {}

    void write(int row) {
        row_ = row;
        put(kColHinNamae, NullToEmpty(name_.Value()));
        if (IntegerOf(payment_.Value()) == 1)
            writePayment();
        else if (IntegerOf(kubun_.Value()) == CustomerAccount::kGas)
            writeGas();
        else
            writeSlip();
        put(kColBalance, Format(balance_, u"##,###,##0"_s));
    }

 private:
    void writePayment() {
        const QString paid = Format(MoneyOf(gaku_.Value()), kYen);
        putNumber();
        put(kColDate, year() + Format(getudo_.Value(), u"00"_s));
        put(kColPaid, paid);
        putKind(CustomerAccount::kPayment);
        // The balance goes down by what the line shows.
        balance_ -= ToCurrency(paid);
    }
    void writeGas() {
        put(kColDate, year() + NumStr(getudo_.Value()));
        put(kColMeter, Format(MoneyOf(meter_.Value()), u"##,##0.0"_s));
        putKind(CustomerAccount::kGas);
        charge();
    }
    void writeSlip() {
        putNumber();
        put(kColDate, NullToEmpty(hizuke_.Value()));
        put(kColSuu, Format(MoneyOf(suu_.Value()), u"#,###"_s));
        put(kColTanka, Format(MoneyOf(tanka_.Value()), u"###,###"_s));
        putKind(CustomerAccount::kSlip);
        charge();
    }
    void charge() {
        const Currency amount = MoneyOf(gaku_.Value());
        put(kColGaku, Format(amount, kYen));
        balance_ += amount;
    }

    QString year() const { return NumStr(nendo_.Value()) + u'/'; }
    void putNumber() { put(kColDno, NumStr(LongOf(dno_.Value()))); }
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
    SetColumns(list, kColumns);
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
    list.SetTextMatrix(1, kColBalance, Format(opening, u"#,##0"_s));
    LineWriter writer(set, list, opening);
    for (int row = kFirstLine; !set.Eof(); ++row, set.MoveNext())
        writer.write(row);
    set.Close();
}

AccountRow ReadAccountRow(const FlexGrid& list, int row) {
    const int kind = static_cast<int>(NumVal(list.TextMatrix(row, kColKind)));
    return {kind, list.TextMatrix(row, kColDno), list.TextMatrix(row, kColDate)};
}

}  // namespace akarix
