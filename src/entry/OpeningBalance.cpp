#include "entry/OpeningBalance.h"

#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

void SetOpeningBalance(std::int32_t deal, BillingMonth month, Currency amount) {
    Recordset row =
        gDb->OpenRecordset(u"SELECT * FROM TtoD  WHERE Deal   ="_s + NumStr(deal) + u" AND   Nendo ="_s +
                           NumStr(month.nendo) + u" AND   Getudo="_s + NumStr(month.getudo));
    if (row.Eof()) {
        row.AddNew();
        row.Fields(u"Deal"_s) = deal;
        row.Fields(u"Nendo"_s) = month.nendo;
        row.Fields(u"Getudo"_s) = month.getudo;
    } else {
        row.Edit();
    }
    row.Fields(u"ZenkaiGaku"_s) = amount;
    row.Fields(u"SyokiFlg"_s) = 1;
    row.Update();
    row.Close();
}

void RemoveOpeningBalance(std::int32_t deal, BillingMonth month) {
    gDb->Execute(u"DELETE FROM TtoD "_s + OfCustomerMonth(deal, month));
}

}  // namespace akarix
