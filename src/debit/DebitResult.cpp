#include "debit/DebitResult.h"

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

namespace {

/// Digits of a record. \param place counted from 1, as in the banks' tables
QString Numeric(const QString& record, int place, int width) {
    return KeepNumeric(record.mid(place - 1, width));
}

}  // namespace

Date ResultDate(const QString& header, Date today) {
    const std::int16_t month = CInt(Numeric(header, 55, 2));
    const std::int16_t day = CInt(Numeric(header, 57, 2));
    const int year = month > Month(today) ? Year(today) - 1 : Year(today);
    // Through the text: a month or day that does not exist must not carry over into another one.
    return CDate(NumStr(year) + u'/' + NumStr(month) + u'/' + NumStr(day));
}

bool EndsResults(const QString& record) {
    return record.startsWith(u'8') || record.startsWith(u'9');
}

DebitResult ReadResult(const QString& record) {
    DebitResult result;
    result.Deal = CLng(Numeric(record, 92, 20));
    result.code = CInt(NumVal(record.mid(111, 1)));
    result.amount = ToCurrency(record.mid(80, 10));
    return result;
}

}  // namespace akarix
