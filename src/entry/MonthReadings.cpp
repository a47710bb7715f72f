#include "entry/MonthReadings.h"

#include <utility>

#include "billing/Sub.h"
#include "platform/runtime/CInt.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

MonthReadings::MonthReadings(QString year, QString month)
    : year_(std::move(year)), month_(std::move(month)) {}

Recordset MonthReadings::show(const QString& filter, const QString& day) const {
    const QString rows = QStringLiteral(
                             "SELECT Dgd.* FROM Dgd "
                             " INNER JOIN Deal ON Dgd.Deal=Deal.Code "
                             " WHERE Nendo   =") +
                         year_ + QStringLiteral(" AND   Getudo  =") + month_ + filter;
    Recordset probe = gDb->OpenRecordset(rows);
    const bool unopened = probe.Eof();
    probe.Close();
    if (unopened) open(filter, day);
    return gDb->OpenRecordset(rows + QStringLiteral(" ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"));
}

void MonthReadings::open(const QString& filter, const QString& day) const {
    const std::int16_t nendo = CInt(year_);
    const std::int16_t getudo = CInt(month_);
    const QString zero = QStringLiteral("0");
    const QStringList unread{zero, zero, zero, zero, zero, day};
    Recordset customers =
        gDb->OpenRecordset(QStringLiteral("SELECT * FROM Deal ") + QStringLiteral(" WHERE Code>0") + filter);
    for (; !customers.Eof(); customers.MoveNext()) {
        const std::int32_t deal = longOf(customers[QStringLiteral("Code")]);
        add(NumStr(deal), NumStr(PrevKonkaiMeter(nendo, getudo, deal)), unread);
    }
    customers.Close();
}

QHash<std::int32_t, QString> MonthReadings::names(const QString& filter) const {
    QHash<std::int32_t, QString> names;
    Recordset customers =
        gDb->OpenRecordset(QStringLiteral("SELECT Code,Namae FROM Deal  WHERE Code Is Not Null") + filter);
    if (customers.Eof()) return names;
    const Field& code = customers.Fields(QStringLiteral("Code"));
    const Field& name = customers.Fields(QStringLiteral("Namae"));
    for (; !customers.Eof(); customers.MoveNext()) {
        names.insert(longOf(code.Value()), NullToEmpty(name.Value()));
    }
    return names;
}

void MonthReadings::clear() const {
    gDb->Execute(QStringLiteral("DELETE FROM Dgd "
                                " WHERE Nendo =") +
                 year_ + QStringLiteral(" AND   Getudo=") + month_);
}

void MonthReadings::clearRoute(const QString& route) const {
    gDb->Execute(QStringLiteral("DELETE FROM Dgd "
                                " WHERE Nendo =") +
                 year_ + QStringLiteral(" AND   Getudo=") + month_ + QStringLiteral(" AND   Rte   =") +
                 route);
}

void MonthReadings::add(const QString& deal, const QString& zenkaiMeter, const QStringList& rest) const {
    const QString comma = QStringLiteral("      , ");
    gDb->Execute(QStringLiteral("INSERT INTO Dgd(Nendo, Getudo, Deal, ZenkaiMeter, KoukanMeter, "
                                "KoukanGoMeter, KonkaiMeter, Suu, Gaku,Hi) "
                                " SELECT ") +
                 year_ + comma + month_ + comma + deal + comma + zenkaiMeter + comma + rest.join(u','));
}

}  // namespace akarix
