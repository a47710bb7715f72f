#include "billing/Sub.h"

#include "platform/runtime/Int.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

Currency PrevKonkaiMeter(int nendo, int getudo, std::int32_t deal) {
    Recordset set =
        gDb->OpenRecordset(QStringLiteral("SELECT TOP 1 KonkaiMeter FROM Dgd  WHERE Deal=") + NumStr(deal) +
                           QStringLiteral(" AND   Nendo*100+Getudo < ") + NumStr(nendo * 100 + getudo) +
                           QStringLiteral(" ORDER BY Nendo*100+Getudo DESC"));
    const Currency meter = set.Eof() ? Currency() : moneyOf(set[QStringLiteral("KonkaiMeter")]);
    set.Close();
    return meter;
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
    Recordset customer =
        gDb->OpenRecordset(QStringLiteral("SELECT TankaPtn FROM Deal  WHERE Code=") + NumStr(deal));
    const bool known = !customer.Eof();
    const std::int16_t pattern = known ? integerOf(customer[QStringLiteral("TankaPtn")]) : std::int16_t{0};
    customer.Close();
    if (!known) return {};

    const QString use = NumStr(usage);
    // No order: where bands overlap, the one that comes first counts.
    Recordset band = gDb->OpenRecordset(
        QStringLiteral("SELECT GasKeisan.Ptn, GasKeisan.St, GasKeisan.Ed, GasKeisan.Kihon, "
                       "GasKeisan.Tanka From GasKeisan WHERE GasKeisan.Ptn=") +
        NumStr(pattern) + QStringLiteral(" AND GasKeisan.St<=") + use +
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
    Recordset set =
        gDb->OpenRecordset(QStringLiteral("SELECT NoSeikyu FROM Deal WHERE Code=") + NumStr(deal));
    const bool noInvoice = set.Eof() || integerOf(set[QStringLiteral("NoSeikyu")]) == 1;
    set.Close();
    return noInvoice;
}

}  // namespace akarix
