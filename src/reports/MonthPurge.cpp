#include "reports/MonthPurge.h"

#include <array>

#include "platform/runtime/Literals.h"
#include "store/dbAccess.h"

namespace akarix {

void PurgeMonth(const QString& year, const QString& month, const QString& customer) {
    constexpr std::array<const char16_t*, 4> kDeletions{
        u"DELETE FROM Dgd  WHERE Nendo=", u"DELETE FROM Dud  WHERE Nendo=", u"DELETE FROM Dny  WHERE Nendo=",
        u"DELETE FROM TtoD WHERE Nendo="};
    QString rest = year + u" AND Getudo="_s + month;
    if (!customer.isEmpty()) rest += u" AND Deal="_s + customer;
    for (const char16_t* deletion : kDeletions)
        gDb->Execute(QString::fromUtf16(deletion) + rest);
}

}  // namespace akarix
