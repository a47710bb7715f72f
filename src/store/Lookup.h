#pragma once

#include <QString>

#include "platform/runtime/Variant.h"
#include "values/BillingMonth.h"

namespace akarix {

class Recordset;

/// A column of the question's first row; Empty when there is no row.
Variant FirstValue(const QString& sql, const QString& column);

/// One-row questions that many screens ask. A missing name is one blank, a missing number 0. The code may be
/// a number or its text; a text that is none raises 13.
QString GetName(const QString& table, const Variant& code);
QString GetDealName(const Variant& code);
struct NameAndNoSeikyu {
    QString name;
    int noSeikyu = 0;
};
NameAndNoSeikyu GetNameAndNoSeikyu(const Variant& deal);
Currency GetHinTanka(const Variant& code);
Variant GetKensinDay(const Variant& code);
/// The one number that a question for a maximum gives, and the step; Null and no row count as 0. Raises 6
/// past 32 bits.
std::int32_t HighestPlus(const QString& sql, std::int32_t step);
/// The next free code of a table, from 1 on.
std::int32_t NextCode(const QString& table);
/// The end of the rounds: 10 behind the last customer.
std::int32_t NextHaisou();
/// The day of a row of readings as "2011/3/25", which need not be a date.
QString ReadingDay(const Recordset& reading);
/// The day of an earlier reading as "2011/3/25", not always the latest one's; empty when there is none or its
/// day is no date.
QString PrevReadingDate(std::int32_t deal, BillingMonth month);
/// The column `contents` of the question's first row; empty when there is none.
QString GetContents(const QString& sql);
/// The address of a postal code, hyphen or not; empty when it is unknown.
QString AddressOfZip(const QString& zip);
/// The billing month of a date for a customer, by the closing day; an unknown customer closes at the month's
/// end.
BillingMonth DateToGetudo(std::int32_t deal, Date hizuke);

}  // namespace akarix
