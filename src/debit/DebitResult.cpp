#include "debit/DebitResult.h"

#include "debit/DebitLayout.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

Date ResultDate(const QString& header, Date today) {
    const QString monthAndDay = kDebitDay.of(header);
    const std::int16_t month = CInt(KeepNumeric(monthAndDay.left(2)));
    const std::int16_t day = CInt(KeepNumeric(monthAndDay.mid(2)));
    const int year = month > Month(today) ? Year(today) - 1 : Year(today);
    // Through the text: a month or day that does not exist must not carry over into another one.
    return CDate(NumStr(year) + u'/' + NumStr(month) + u'/' + NumStr(day));
}

bool EndsResults(const QString& record) {
    return record.startsWith(u'8') || record.startsWith(u'9');
}

DebitResult ReadResult(const QString& record) {
    DebitResult result;
    result.Deal = CLng(KeepNumeric(kDebitCustomer.of(record)));
    result.code = CInt(NumVal(record.mid(kDebitResultPlace - 1, 1)));
    result.amount = ToCurrency(kDebitAmount.of(record));
    return result;
}

}  // namespace akarix
