#include "store/Lookup.h"

#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

const QString kBlank = u" "_s;
constexpr std::int16_t kMonthEnd = 31;

QString NameOrBlank(const QString& sql) {
    const Variant name = FirstValue(sql, u"Namae"_s);
    return name.IsEmpty() ? kBlank : NullToEmpty(name);
}

}  // namespace

Variant FirstValue(const QString& sql, const QString& column) {
    Recordset set = gDb->OpenRecordset(sql);
    const Variant value = set.Eof() ? Variant() : set[column];
    set.Close();
    return value;
}

QString GetName(const QString& table, const Variant& code) {
    return NameOrBlank(u"SELECT Code,Namae FROM "_s + table + u" WHERE Code="_s + NumStr(code));
}

NameAndNoSeikyu GetNameAndNoSeikyu(const Variant& deal) {
    const Recordset set =
        gDb->OpenRecordset(u"SELECT Code,Namae,NoSeikyu FROM Deal WHERE Code="_s + NumStr(deal));
    if (set.Eof()) return {kBlank};
    return {NullToEmpty(set[u"Namae"_s]), IntegerOf(set[u"NoSeikyu"_s])};
}

QString GetDealName(const Variant& code) {
    return NameOrBlank(u"SELECT Namae FROM Deal "_s + u" WHERE Code="_s + NumStr(code));
}

Currency GetHinTanka(const Variant& code) {
    return MoneyOf(FirstValue(u"SELECT Tanka FROM Hin WHERE Code="_s + NumStr(code), u"Tanka"_s));
}

Variant GetKensinDay(const Variant& code) {
    const Variant day = FirstValue(u"SELECT Kensin FROM Rte WHERE Code="_s + NumStr(code), u"Kensin"_s);
    return NullToZero(day.IsEmpty() ? Variant::Null() : day);
}

std::int32_t HighestPlus(const QString& sql, std::int32_t step) {
    Recordset set = gDb->OpenRecordset(sql);
    const std::int64_t highest = set.Eof() ? 0 : LongOf(set.Fields(0).Value());
    set.Close();
    if (highest + step > INT32_MAX) throw RuntimeError(6);
    return static_cast<std::int32_t>(highest + step);
}

std::int32_t NextCode(const QString& table) {
    return HighestPlus(u"SELECT MAX(Code) AS tCode FROM "_s + table, 1);
}

std::int32_t NextHaisou() {
    return HighestPlus(u"SELECT MAX(Haisou) AS tCode FROM Deal"_s, 10);
}

QString ReadingDay(const Recordset& reading) {
    return NumStr(NullToZero(reading[u"Nendo"_s])) + u'/' + NumStr(NullToZero(reading[u"Getudo"_s])) + u'/' +
           NumStr(NullToZero(reading[u"Hi"_s]));
}

QString PrevReadingDate(std::int32_t deal, BillingMonth month) {
    const Recordset set = gDb->OpenRecordset(u"SELECT * FROM Dgd "_s + u" WHERE Deal  ="_s + NumStr(deal) +
                                             u" AND   Nendo*100+Getudo<"_s + NumStr(month.key()));
    const QString day = set.Eof() ? QString() : ReadingDay(set);
    return IsDate(day) ? day : QString();
}

QString GetContents(const QString& sql) {
    return NullToEmpty(FirstValue(sql, u"contents"_s));
}

QString AddressOfZip(const QString& zip) {
    return NullToEmpty(FirstValue(u"SELECT Addr FROM Zip7 WHERE Code="_s + KeepDigits(zip), u"Addr"_s));
}

BillingMonth DateToGetudo(std::int32_t deal, Date hizuke) {
    const Variant sime = FirstValue(u"SELECT Sime FROM Deal WHERE Code="_s + NumStr(deal), u"Sime"_s);
    const std::int16_t closingDay = sime.IsEmpty() ? kMonthEnd : IntegerOf(sime);
    // A closing day of 0 moves every date into the next month.
    return BillingMonth::Of(hizuke).plus(closingDay < Day(hizuke) ? 1 : 0);
}

}  // namespace akarix
