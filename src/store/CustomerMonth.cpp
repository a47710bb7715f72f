#include "store/CustomerMonth.h"

#include <QStringBuilder>

#include "values/NumStr.h"

namespace akarix {

QString OfCustomerMonth(std::int32_t deal, int nendo, int getudo) {
    return OfCustomerMonth(NumStr(deal), NumStr(nendo), NumStr(getudo));
}

QString OfCustomerMonth(const QString& deal, const QString& nendo, const QString& getudo) {
    // Asked for each customer of a run: joined in one go.
    return QStringLiteral(" WHERE Deal  =") % deal % QStringLiteral(" AND   Nendo =") % nendo %
           QStringLiteral(" AND   Getudo=") % getudo;
}

}  // namespace akarix
