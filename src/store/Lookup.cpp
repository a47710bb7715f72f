#include "store/Lookup.h"

#include "platform/runtime/DatePart.h"
#include "platform/runtime/IsDate.h"
#include "platform/runtime/RuntimeError.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {

namespace {

const QString blank = QStringLiteral(" ");
constexpr std::int16_t monthEnd = 31;

QString nameOrBlank(const QString& sql) {
    const Variant name = FirstValue(sql, QStringLiteral("Namae"));
    return name.IsEmpty() ? blank : NullToEmpty(name);
}

}  // namespace

Variant FirstValue(const QString& sql, const QString& column) {
    Recordset set = gDb->OpenRecordset(sql);
    const Variant value = set.Eof() ? Variant() : set[column];
    set.Close();
    return value;
}

QString GetName(const QString& table, const Variant& code) {
    return nameOrBlank(QStringLiteral("SELECT Code,Namae FROM ") + table + QStringLiteral(" WHERE Code=") +
                       NumStr(code));
}

void GetNameAndNoSeikyu(const QString& table, const Variant& code, QString& name, int& noSeikyu) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT Code,Namae,NoSeikyu FROM ") + table +
                                       QStringLiteral(" WHERE Code=") + NumStr(code));
    name = blank;
    noSeikyu = 0;
    if (!set.Eof()) {
        name = NullToEmpty(set[QStringLiteral("Namae")]);
        noSeikyu = integerOf(set[QStringLiteral("NoSeikyu")]);
    }
    set.Close();
}

QString GetDealName(const Variant& code) {
    return nameOrBlank(QStringLiteral("SELECT Namae FROM Deal ") + QStringLiteral(" WHERE Code=") +
                       NumStr(code));
}

Currency GetHinTanka(const Variant& code) {
    return moneyOf(FirstValue(QStringLiteral("SELECT Tanka FROM Hin WHERE Code=") + NumStr(code),
                              QStringLiteral("Tanka")));
}

Variant GetKensinDay(const Variant& code) {
    const Variant day = FirstValue(QStringLiteral("SELECT Kensin FROM Rte WHERE Code=") + NumStr(code),
                                   QStringLiteral("Kensin"));
    return NullToZero(day.IsEmpty() ? Variant::Null() : day);
}

std::int32_t HighestPlus(const QString& sql, std::int32_t step) {
    Recordset set = gDb->OpenRecordset(sql);
    const std::int64_t highest = set.Eof() ? 0 : longOf(set.Fields(0).Value());
    set.Close();
    if (highest + step > INT32_MAX) throw RuntimeError(6);
    return static_cast<std::int32_t>(highest + step);
}

std::int32_t NextCode(const QString& table) {
    return HighestPlus(QStringLiteral("SELECT MAX(Code) AS tCode FROM ") + table, 1);
}

std::int32_t NextHaisou() {
    return HighestPlus(QStringLiteral("SELECT MAX(Haisou) AS tCode FROM Deal"), 10);
}

QString ReadingDay(const Recordset& reading) {
    return NumStr(NullToZero(reading[QStringLiteral("Nendo")])) + u'/' +
           NumStr(NullToZero(reading[QStringLiteral("Getudo")])) + u'/' +
           NumStr(NullToZero(reading[QStringLiteral("Hi")]));
}

void PrevReadingDate(int year, int month, std::int32_t deal, QString& text) {
    Recordset set = gDb->OpenRecordset(
        QStringLiteral("SELECT * FROM Dgd ") + QStringLiteral(" WHERE Deal  =") + NumStr(deal) +
        QStringLiteral(" AND   Nendo*100+Getudo<") + NumStr(year * 100 + month));
    text.clear();
    if (!set.Eof()) {
        const QString day = ReadingDay(set);
        if (IsDate(day)) text = day;
    }
    set.Close();
}

QString GetContents(const QString& sql) {
    return NullToEmpty(FirstValue(sql, QStringLiteral("contents")));
}

QString AddressOfZip(const QString& zip) {
    return NullToEmpty(FirstValue(QStringLiteral("SELECT Addr FROM Zip7 WHERE Code=") + KeepDigits(zip),
                                  QStringLiteral("Addr")));
}

void DateToGetudo(std::int32_t deal, Date hizuke, int& nendo, int& getudo) {
    const Variant sime = FirstValue(QStringLiteral("SELECT Sime FROM Deal WHERE Code=") + NumStr(deal),
                                    QStringLiteral("Sime"));
    const std::int16_t closingDay = sime.IsEmpty() ? monthEnd : integerOf(sime);
    nendo = Year(hizuke);
    getudo = Month(hizuke);
    // A closing day of 0 moves every date into the next month.
    if (closingDay < Day(hizuke)) ++getudo;
    if (getudo > 12) {
        getudo = 1;
        ++nendo;
    }
}

}  // namespace akarix
