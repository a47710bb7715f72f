#include "store/CustomerMonth.h"

#include <QStringBuilder>

#include "platform/runtime/Literals.h"
#include "values/NumStr.h"

namespace akarix {

QString OfCustomerMonth(std::int32_t deal, int nendo, int getudo) {
    return OfCustomerMonth(NumStr(deal), NumStr(nendo), NumStr(getudo));
}

QString OfCustomerMonth(const QString& deal, const QString& nendo, const QString& getudo) {
    // Asked for each customer of a run: joined in one go.
    return u" WHERE Deal  ="_s % deal % u" AND   Nendo ="_s % nendo % u" AND   Getudo="_s % getudo;
}

}  // namespace akarix
