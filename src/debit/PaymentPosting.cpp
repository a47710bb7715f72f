#include "debit/PaymentPosting.h"

#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

constexpr std::int16_t kDebited = 2;  // the payment class of direct debit

/// The first payment of all gets 0.
std::int32_t NextNumber() {
    return LongOf(FirstValue(u"SELECT MAX(Dno)+1 AS tDno FROM Dny"_s, u"tDno"_s));
}

}  // namespace

void PostPayment(std::int32_t deal, Date hizuke, Currency amount) {
    const BillingMonth month = DateToGetudo(deal, hizuke);
    const std::int32_t dno = NextNumber();
    Recordset payments = gDb->OpenRecordset(u"SELECT * FROM Dny "_s);
    payments.AddNew();
    payments.Fields(u"Dno"_s) = dno;
    payments.Fields(u"Hizuke"_s) = hizuke;
    payments.Fields(u"Deal"_s) = deal;
    payments.Fields(u"Nendo"_s) = month.nendo;
    payments.Fields(u"Getudo"_s) = month.getudo;
    payments.Fields(u"Gaku"_s) = amount;
    payments.Fields(u"Kubun"_s) = kDebited;
    payments.Update();
    payments.Close();
    gDb->Execute(u"UPDATE TtoD  SET   NGaku="_s + NumStr(amount) + OfCustomerMonth(deal, month));
}

}  // namespace akarix
