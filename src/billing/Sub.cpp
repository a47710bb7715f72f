#include "billing/Sub.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

Currency PrevKonkaiMeter(std::int32_t deal, BillingMonth month) {
    return MoneyOf(FirstValue(u"SELECT TOP 1 KonkaiMeter FROM Dgd  WHERE Deal="_s + NumStr(deal) +
                                  u" AND   Nendo*100+Getudo < "_s + NumStr(month.key()) +
                                  u" ORDER BY Nendo*100+Getudo DESC"_s,
                              u"KonkaiMeter"_s));
}

MonthMeter ReadMonthMeter(std::int32_t deal, BillingMonth month) {
    Recordset set = gDb->OpenRecordset(u"SELECT * FROM Dgd "_s + OfCustomerMonth(deal, month));
    MonthMeter meter;
    if (!set.Eof())
        meter = {MoneyOf(set[u"ZenkaiMeter"_s]), MoneyOf(set[u"KonkaiMeter"_s]), MoneyOf(set[u"Suu"_s])};
    set.Close();
    return meter;
}

Currency CalcGasCharge(std::int32_t deal, Currency usage) {
    const Variant pattern =
        FirstValue(u"SELECT TankaPtn FROM Deal  WHERE Code="_s + NumStr(deal), u"TankaPtn"_s);
    if (pattern.IsEmpty()) return {};

    const QString use = NumStr(usage);
    // No order: where bands overlap, the one that comes first counts.
    Recordset band = gDb->OpenRecordset(
        u"SELECT GasKeisan.Ptn, GasKeisan.St, GasKeisan.Ed, GasKeisan.Kihon, "
        "GasKeisan.Tanka From GasKeisan WHERE GasKeisan.Ptn="_s +
        NumStr(IntegerOf(pattern)) + u" AND GasKeisan.St<="_s + use + u" AND GasKeisan.Ed>="_s + use);
    Currency charge;
    if (!band.Eof()) {
        const Currency above = usage - Currency(int{IntegerOf(band[u"St"_s])});
        charge = MoneyOf(band[u"Kihon"_s]) + Int(above * MoneyOf(band[u"Tanka"_s]));
    }
    band.Close();
    return charge;
}

bool IsNoInvoice(std::int32_t deal) {
    const Variant flag = FirstValue(u"SELECT NoSeikyu FROM Deal WHERE Code="_s + NumStr(deal), u"NoSeikyu"_s);
    return flag.IsEmpty() || IntegerOf(flag) == 1;
}

}  // namespace akarix
