#include "values/BillingMonth.h"

#include <QStringBuilder>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

QString InMonth(BillingMonth month) {
    return u"Nendo ="_s % QString::number(month.nendo) % u" AND   Getudo="_s % QString::number(month.getudo);
}

}  // namespace

BillingMonth BillingMonth::Of(Date date) {
    return {Year(date), Month(date)};
}

BillingMonth BillingMonth::plus(int months) const {
    const int counted = nendo * 12 + getudo - 1 + months;
    return {counted / 12, counted % 12 + 1};
}

QString OfMonth(BillingMonth month) {
    return u" WHERE "_s % InMonth(month);
}

QString OfCustomerMonth(std::int32_t deal, BillingMonth month) {
    // Asked for each customer of a run: joined in one go.
    return u" WHERE Deal  ="_s % QString::number(deal) % u" AND   "_s % InMonth(month);
}

}  // namespace akarix
