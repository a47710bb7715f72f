#pragma once

#include <QHash>
#include <QStringList>

#include "platform/dao/Recordset.h"

namespace akarix {

/// The meter readings of one billing month in the store, a row a customer. Numbers come as the texts that go
/// into the statements.
class MonthReadings {
 public:
    MonthReadings(QString year, QString month);

    /// The filter's rows in the order of the round. Looking at a month opens it: where the filter finds no
    /// row at all, its customers get one each, read on `day` with nothing used yet.
    Recordset show(const QString& filter, const QString& day) const;

    /// The names of the filter's customers by code; asking once for a whole sheet is many times quicker than
    /// by row.
    QHash<std::int32_t, QString> names(const QString& filter) const;

    /// Takes the month away, every route of it.
    void clear() const;
    void clearRoute(const QString& route) const;

    /// \param rest KoukanMeter, KoukanGoMeter, KonkaiMeter, Suu, Gaku and Hi
    void add(const QString& deal, const QString& zenkaiMeter, const QStringList& rest) const;

 private:
    void open(const QString& filter, const QString& day) const;

    QString year_;
    QString month_;
};

}  // namespace akarix
