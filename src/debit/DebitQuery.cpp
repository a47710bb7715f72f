#include "debit/DebitQuery.h"

#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

QString DebitQuery(int bank, int nendo, int getudo) {
    return QStringLiteral(
               "SELECT First(Deal.Rte) AS Rte, First(Deal.Haisou) AS Haiso, First(TtoD.Deal) AS Deal,"
               " Sum([TtoD].[ZenkaiGaku]+[TtoD].[Gaku]-[TtoD].[NGaku]) AS tGaku,"
               " First(Deal.DiscGaku) AS DiscGaku, First(Deal.Kana) AS Kana, First(Deal.Bnk) AS Bnk,"
               " First(Deal.Stn) AS Stn, First(Deal.Kind) AS Kind,"
               " First(Deal.Koza) AS Koza"
               " FROM TtoD INNER JOIN Deal ON TtoD.Deal = Deal.Code"
               " Where [TtoD].[ZenkaiGaku] + [TtoD].[Gaku] - [TtoD].[NGaku] > 0"
               " And Deal.Bnk = ") +
           NumStr(bank) + QStringLiteral(" And TtoD.Nendo = ") + NumStr(nendo) +
           QStringLiteral(" And TtoD.Getudo = ") + NumStr(getudo) +
           QStringLiteral(
               " GROUP BY Deal.Bnk,Deal.Stn,Deal.Kind,Deal.Koza"
               " ORDER BY First(Deal.Rte), First(Deal.Haisou), First(TtoD.Deal)");
}

DebitRow ReadDebitRow(const Recordset& set) {
    DebitRow row;
    row.Deal = longOf(set[QStringLiteral("Deal")]);
    row.Bnk = integerOf(set[QStringLiteral("Bnk")]);
    row.Stn = integerOf(set[QStringLiteral("Stn")]);
    row.Kind = integerOf(set[QStringLiteral("Kind")]);
    row.Koza = NullToEmpty(set[QStringLiteral("Koza")]);
    row.Kana = NullToEmpty(set[QStringLiteral("Kana")]);
    row.tGaku = moneyOf(set[QStringLiteral("tGaku")]);
    row.DiscGaku = moneyOf(set[QStringLiteral("DiscGaku")]);
    return row;
}

Currency DebitAmount(Currency tGaku, Currency DiscGaku) {
    return !DiscGaku.IsZero() && DiscGaku <= tGaku ? DiscGaku : tGaku;
}

}  // namespace akarix
