#include "billing/Sub.h"

#include "platform/runtime/Int.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

Currency PrevKonkaiMeter(int nendo, int getudo, std::int32_t deal) {
    return moneyOf(FirstValue(QStringLiteral("SELECT TOP 1 KonkaiMeter FROM Dgd  WHERE Deal=") +
                                  NumStr(deal) + QStringLiteral(" AND   Nendo*100+Getudo < ") +
                                  NumStr(nendo * 100 + getudo) +
                                  QStringLiteral(" ORDER BY Nendo*100+Getudo DESC"),
                              QStringLiteral("KonkaiMeter")));
}

void ReadMonthMeter(std::int32_t deal, int nendo, int getudo, Currency& zenkaiMeter, Currency& konkaiMeter,
                    Currency& suu) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT * FROM Dgd  WHERE Deal  =") + NumStr(deal) +
                                       QStringLiteral(" AND   Nendo =") + NumStr(nendo) +
                                       QStringLiteral(" AND   Getudo=") + NumStr(getudo));
    zenkaiMeter = konkaiMeter = suu = Currency();
    if (!set.Eof()) {
        zenkaiMeter = moneyOf(set[QStringLiteral("ZenkaiMeter")]);
        konkaiMeter = moneyOf(set[QStringLiteral("KonkaiMeter")]);
        suu = moneyOf(set[QStringLiteral("Suu")]);
    }
    set.Close();
}

Currency CalcGasCharge(std::int32_t deal, Currency usage) {
    const Variant pattern = FirstValue(
        QStringLiteral("SELECT TankaPtn FROM Deal  WHERE Code=") + NumStr(deal), QStringLiteral("TankaPtn"));
    if (pattern.IsEmpty()) return {};

    const QString use = NumStr(usage);
    // No order: where bands overlap, the one that comes first counts.
    Recordset band = gDb->OpenRecordset(
        QStringLiteral("SELECT GasKeisan.Ptn, GasKeisan.St, GasKeisan.Ed, GasKeisan.Kihon, "
                       "GasKeisan.Tanka From GasKeisan WHERE GasKeisan.Ptn=") +
        NumStr(integerOf(pattern)) + QStringLiteral(" AND GasKeisan.St<=") + use +
        QStringLiteral(" AND GasKeisan.Ed>=") + use);
    Currency charge;
    if (!band.Eof()) {
        const Currency above = usage - Currency(int{integerOf(band[QStringLiteral("St")])});
        charge = moneyOf(band[QStringLiteral("Kihon")]) + Int(above * moneyOf(band[QStringLiteral("Tanka")]));
    }
    band.Close();
    return charge;
}

bool IsNoInvoice(std::int32_t deal) {
    const Variant flag = FirstValue(QStringLiteral("SELECT NoSeikyu FROM Deal WHERE Code=") + NumStr(deal),
                                    QStringLiteral("NoSeikyu"));
    return flag.IsEmpty() || integerOf(flag) == 1;
}

}  // namespace akarix
