#include "reports/CustomerAccount.h"

#include "billing/Tto.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

CustomerAccount::CustomerAccount(const QString& year, const QString& month, const QString& customer)
    : from_{CLng(KeepNumeric(year)), CLng(KeepNumeric(month))}, customer_(KeepNumeric(customer)) {}

std::int32_t CustomerAccount::customer() const {
    return CLng(customer_);
}

void CustomerAccount::gather() const {
    const QString ym = NumStr(from_.key());
    const QString ofCustomer = ym + u" AND    Deal = "_s + customer_;
    gDb->Execute(u"DELETE FROM TempD"_s);
    gDb->Execute(
        u"INSERT INTO TempD ( Nendo, Getudo, Kubun, KonkaiMeter, HinNamae, Gaku ) "
        " SELECT Nendo, Getudo, 1, KonkaiMeter, 'LPガス', Gaku "
        " FROM   Dgd "
        " WHERE  Nendo*100+Getudo>="_s +
        ofCustomer);
    gDb->Execute(
        u"INSERT INTO TempD ( Dno,Nendo, Getudo, Kubun, Hizuke, HinNamae, Suu, Tanka, "
        "Gaku ) "
        " SELECT Dno,Nendo, Getudo, 2, Hizuke, HinNamae, Suu, Tanka, Gaku "
        " FROM   Dud "
        " WHERE  Nendo*100+Getudo>="_s +
        ofCustomer);
    gDb->Execute(
        u"INSERT INTO TempD ( Dno,Nendo, Getudo, Kubun,HinNamae, Gaku,NFLG )"
        " SELECT Dny.Dno,Dny.Nendo, Dny.Getudo, 3,'入金', Sum(Dny.Gaku) AS tGaku,1"
        " From Dny"
        " Where [Nendo] * 100 + [Getudo] >="_s +
        ofCustomer + u" GROUP BY Dny.Dno,Dny.Nendo, Dny.Getudo"_s);
}

Currency CustomerAccount::opening() const {
    return MoneyOf(PriorBalance(customer(), from_));
}

Recordset CustomerAccount::lines() const {
    return gDb->OpenRecordset(
        u"SELECT * FROM TempD "
        " ORDER BY Nendo*100+Getudo,Kubun,Hizuke "_s);
}

}  // namespace akarix
