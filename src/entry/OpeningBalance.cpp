#include "entry/OpeningBalance.h"

#include "store/CustomerMonth.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

void SetOpeningBalance(std::int32_t deal, int nendo, int getudo, Currency amount) {
    Recordset row = gDb->OpenRecordset(QStringLiteral("SELECT * FROM TtoD  WHERE Deal   =") + NumStr(deal) +
                                       QStringLiteral(" AND   Nendo =") + NumStr(nendo) +
                                       QStringLiteral(" AND   Getudo=") + NumStr(getudo));
    if (row.Eof()) {
        row.AddNew();
        row.Fields(QStringLiteral("Deal")) = deal;
        row.Fields(QStringLiteral("Nendo")) = nendo;
        row.Fields(QStringLiteral("Getudo")) = getudo;
    } else {
        row.Edit();
    }
    row.Fields(QStringLiteral("ZenkaiGaku")) = amount;
    row.Fields(QStringLiteral("SyokiFlg")) = 1;
    row.Update();
    row.Close();
}

void RemoveOpeningBalance(std::int32_t deal, int nendo, int getudo) {
    gDb->Execute(QStringLiteral("DELETE FROM TtoD ") + OfCustomerMonth(deal, nendo, getudo));
}

}  // namespace akarix
