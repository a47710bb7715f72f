#include "ledger/Rows.h"

#include <cmath>

#include "platform/dao/Database.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

std::int64_t PlainNumber(const Variant& value) {
    if (const Currency* amount = value.If<Currency>()) return amount->Scaled();
    if (const std::int32_t* number = value.If<std::int32_t>()) return *number;
    if (const std::int16_t* number = value.If<std::int16_t>()) return *number;
    if (const Date* date = value.If<Date>()) return static_cast<std::int64_t>(std::floor(date->Serial()));
    return 0;
}

}  // namespace

QString WhereMonth(BillingMonth month) {
    return u" WHERE Nendo=%1 AND Getudo=%2"_s.arg(month.nendo).arg(month.getudo);
}

std::vector<std::vector<std::int64_t>> ReadNumbers(Database& db, const QString& sql) {
    Recordset set = db.OpenRecordset(sql);
    std::vector<std::vector<std::int64_t>> rows;
    for (; !set.Eof(); set.MoveNext()) {
        std::vector<std::int64_t>& row = rows.emplace_back();
        row.reserve(static_cast<std::size_t>(set.FieldCount()));
        for (int i = 0; i < set.FieldCount(); ++i)
            row.push_back(PlainNumber(set.Fields(i).Value()));
    }
    set.Close();
    return rows;
}

}  // namespace akarix
