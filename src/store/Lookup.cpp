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

}  // namespace

QString GetName(const QString& table, const Variant& code) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT Code,Namae FROM ") + table +
                                       QStringLiteral(" WHERE Code=") + NumStr(code));
    const QString name = set.Eof() ? blank : NullToEmpty(set[QStringLiteral("Namae")]);
    set.Close();
    return name;
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
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT Namae FROM Deal ") +
                                       QStringLiteral(" WHERE Code=") + NumStr(code));
    const QString name = set.Eof() ? blank : NullToEmpty(set[QStringLiteral("Namae")]);
    set.Close();
    return name;
}

Currency GetHinTanka(const Variant& code) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT Tanka FROM Hin WHERE Code=") + NumStr(code));
    const Currency price = set.Eof() ? Currency() : moneyOf(set[QStringLiteral("Tanka")]);
    set.Close();
    return price;
}

Variant GetKensinDay(const Variant& code) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT Kensin FROM Rte WHERE Code=") + NumStr(code));
    const Variant day = set.Eof() ? Variant(std::int16_t{0}) : NullToZero(set[QStringLiteral("Kensin")]);
    set.Close();
    return day;
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

void PrevReadingDate(int year, int month, std::int32_t deal, QString& text) {
    Recordset set = gDb->OpenRecordset(
        QStringLiteral("SELECT * FROM Dgd ") + QStringLiteral(" WHERE Deal  =") + NumStr(deal) +
        QStringLiteral(" AND   Nendo*100+Getudo<") + NumStr(year * 100 + month));
    text.clear();
    if (!set.Eof()) {
        const QString day = NumStr(NullToZero(set[QStringLiteral("Nendo")])) + u'/' +
                            NumStr(NullToZero(set[QStringLiteral("Getudo")])) + u'/' +
                            NumStr(NullToZero(set[QStringLiteral("Hi")]));
        if (IsDate(day)) text = day;
    }
    set.Close();
}

QString GetContents(const QString& sql) {
    Recordset set = gDb->OpenRecordset(sql);
    const QString contents = set.Eof() ? QString() : NullToEmpty(set[QStringLiteral("contents")]);
    set.Close();
    return contents;
}

QString AddressOfZip(const QString& zip) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT Addr FROM Zip7 WHERE Code=") + KeepDigits(zip));
    const QString address = set.Eof() ? QString() : NullToEmpty(set[QStringLiteral("Addr")]);
    set.Close();
    return address;
}

void DateToGetudo(std::int32_t deal, Date hizuke, int& nendo, int& getudo) {
    Recordset set = gDb->OpenRecordset(QStringLiteral("SELECT Sime FROM Deal WHERE Code=") + NumStr(deal));
    const std::int16_t closingDay = set.Eof() ? monthEnd : integerOf(set[QStringLiteral("Sime")]);
    set.Close();
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
