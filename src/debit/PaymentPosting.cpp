#include "debit/PaymentPosting.h"

#include "store/CustomerMonth.h"
#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"

namespace akarix {

namespace {

constexpr std::int16_t kDebited = 2;  // the payment class of direct debit

/// The first payment of all gets 0.
std::int32_t nextNumber() {
    return longOf(FirstValue(QStringLiteral("SELECT MAX(Dno)+1 AS tDno FROM Dny"), QStringLiteral("tDno")));
}

}  // namespace

void PostPayment(std::int32_t deal, Date hizuke, Currency amount) {
    int nendo = 0;
    int getudo = 0;
    DateToGetudo(deal, hizuke, nendo, getudo);
    const std::int32_t dno = nextNumber();
    Recordset payments = gDb->OpenRecordset(QStringLiteral("SELECT * FROM Dny "));
    payments.AddNew();
    payments.Fields(QStringLiteral("Dno")) = dno;
    payments.Fields(QStringLiteral("Hizuke")) = hizuke;
    payments.Fields(QStringLiteral("Deal")) = deal;
    payments.Fields(QStringLiteral("Nendo")) = nendo;
    payments.Fields(QStringLiteral("Getudo")) = getudo;
    payments.Fields(QStringLiteral("Gaku")) = amount;
    payments.Fields(QStringLiteral("Kubun")) = kDebited;
    payments.Update();
    payments.Close();
    gDb->Execute(QStringLiteral("UPDATE TtoD  SET   NGaku=") + NumStr(amount) +
                 OfCustomerMonth(deal, nendo, getudo));
}

}  // namespace akarix
