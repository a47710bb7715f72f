#include "entry/MonthReadings.h"

#include <utility>

#include "billing/Sub.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

MonthReadings::MonthReadings(QString year, QString month)
    : year_(std::move(year)), month_(std::move(month)) {}

Recordset MonthReadings::show(const QString& filter, const QString& day) const {
    const QString rows =
        u"SELECT Dgd.* FROM Dgd "
        " INNER JOIN Deal ON Dgd.Deal=Deal.Code "
        " WHERE Nendo   ="_s +
        year_ + u" AND   Getudo  ="_s + month_ + filter;
    Recordset probe = gDb->OpenRecordset(rows);
    const bool unopened = probe.Eof();
    probe.Close();
    if (unopened) open(filter, day);
    return gDb->OpenRecordset(rows + u" ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"_s);
}

void MonthReadings::open(const QString& filter, const QString& day) const {
    const BillingMonth month{CInt(year_), CInt(month_)};
    const QString zero = u"0"_s;
    const QStringList unread{zero, zero, zero, zero, zero, day};
    Recordset customers = gDb->OpenRecordset(u"SELECT * FROM Deal "_s + u" WHERE Code>0"_s + filter);
    for (; !customers.Eof(); customers.MoveNext()) {
        const std::int32_t deal = LongOf(customers[u"Code"_s]);
        add(NumStr(deal), NumStr(PrevKonkaiMeter(deal, month)), unread);
    }
    customers.Close();
}

QHash<std::int32_t, QString> MonthReadings::names(const QString& filter) const {
    QHash<std::int32_t, QString> names;
    Recordset customers =
        gDb->OpenRecordset(u"SELECT Code,Namae FROM Deal  WHERE Code Is Not Null"_s + filter);
    if (customers.Eof()) return names;
    const Field& code = customers.Fields(u"Code"_s);
    const Field& name = customers.Fields(u"Namae"_s);
    for (; !customers.Eof(); customers.MoveNext())
        names.insert(LongOf(code.Value()), NullToEmpty(name.Value()));
    return names;
}

void MonthReadings::clear() const {
    gDb->Execute(
        u"DELETE FROM Dgd "
        " WHERE Nendo ="_s +
        year_ + u" AND   Getudo="_s + month_);
}

void MonthReadings::clearRoute(const QString& route) const {
    gDb->Execute(
        u"DELETE FROM Dgd "
        " WHERE Nendo ="_s +
        year_ + u" AND   Getudo="_s + month_ + u" AND   Rte   ="_s + route);
}

void MonthReadings::add(const QString& deal, const QString& zenkaiMeter, const QStringList& rest) const {
    const QString comma = u"      , "_s;
    gDb->Execute(
        u"INSERT INTO Dgd(Nendo, Getudo, Deal, ZenkaiMeter, KoukanMeter, "
        "KoukanGoMeter, KonkaiMeter, Suu, Gaku,Hi) "
        " SELECT "_s +
        year_ + comma + month_ + comma + deal + comma + zenkaiMeter + comma + rest.join(u','));
}

}  // namespace akarix
