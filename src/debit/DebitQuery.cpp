#include "debit/DebitQuery.h"

#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

QString DebitQuery(int bank, BillingMonth month) {
    return u"SELECT First(Deal.Rte) AS Rte, First(Deal.Haisou) AS Haiso, First(TtoD.Deal) AS Deal,"
           " Sum([TtoD].[ZenkaiGaku]+[TtoD].[Gaku]-[TtoD].[NGaku]) AS tGaku,"
           " First(Deal.DiscGaku) AS DiscGaku, First(Deal.Kana) AS Kana, First(Deal.Bnk) AS Bnk,"
           " First(Deal.Stn) AS Stn, First(Deal.Kind) AS Kind,"
           " First(Deal.Koza) AS Koza"
           " FROM TtoD INNER JOIN Deal ON TtoD.Deal = Deal.Code"
           " Where [TtoD].[ZenkaiGaku] + [TtoD].[Gaku] - [TtoD].[NGaku] > 0"
           " And Deal.Bnk = "_s +
           NumStr(bank) + u" And TtoD.Nendo = "_s + NumStr(month.nendo) + u" And TtoD.Getudo = "_s +
           NumStr(month.getudo) +
           u" GROUP BY Deal.Bnk,Deal.Stn,Deal.Kind,Deal.Koza"
           " ORDER BY First(Deal.Rte), First(Deal.Haisou), First(TtoD.Deal)"_s;
}

DebitRow ReadDebitRow(const Recordset& set) {
    DebitRow row;
    row.Deal = LongOf(set[u"Deal"_s]);
    row.Bnk = IntegerOf(set[u"Bnk"_s]);
    row.Stn = IntegerOf(set[u"Stn"_s]);
    row.Kind = IntegerOf(set[u"Kind"_s]);
    row.Koza = NullToEmpty(set[u"Koza"_s]);
    row.Kana = NullToEmpty(set[u"Kana"_s]);
    row.tGaku = MoneyOf(set[u"tGaku"_s]);
    row.DiscGaku = MoneyOf(set[u"DiscGaku"_s]);
    return row;
}

Currency DebitAmount(Currency tGaku, Currency DiscGaku) {
    return !DiscGaku.IsZero() && DiscGaku <= tGaku ? DiscGaku : tGaku;
}

}  // namespace akarix
