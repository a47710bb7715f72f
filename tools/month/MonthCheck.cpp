#include "month/MonthCheck.h"

#include <QStringList>

#include "ledger/ChargeCheck.h"
#include "ledger/LedgerCheck.h"
#include "ledger/Rows.h"
#include "month/Failure.h"

namespace akarix::month {

namespace {

constexpr std::int64_t scaledTenth = 1000;

QStringList compareReadings(Database& db, int year, int month, std::map<std::int32_t, MeterNote> typed) {
    QStringList differences;
    for (const auto& row :
         readNumbers(db, QStringLiteral("SELECT Deal,KoukanMeter,KoukanGoMeter,KonkaiMeter FROM Dgd "
                                        "WHERE Nendo=%1 AND Getudo=%2 ORDER BY Deal")
                             .arg(year)
                             .arg(month))) {
        const auto deal = static_cast<std::int32_t>(row[0]);
        const auto tenths = [&row](std::size_t column) {
            return static_cast<int>(row[column] / scaledTenth);
        };
        const MeterNote stored{tenths(1), tenths(2), tenths(3)};
        const auto note = typed.find(deal);
        if (stored != (note == typed.end() ? MeterNote() : note->second)) {
            differences << QStringLiteral("得意先 %1: 入力した検針値と違います。").arg(deal);
        }
        if (note != typed.end()) typed.erase(note);
    }
    for (const auto& [deal, note] : typed)
        differences << QStringLiteral("得意先 %1: 入力した検針がありません。").arg(deal);
    return differences;
}

}  // namespace

void checkMonth(Database& db, int year, int month, const std::map<std::int32_t, MeterNote>& typed) {
    QStringList differences = compareReadings(db, year, month, typed);
    for (const auto& found : {CheckCharges(db, year, month), CheckLedgerMonth(db, year, month)}) {
        for (const Difference& difference : found)
            differences << describe(difference);
    }
    if (differences.isEmpty()) return;
    throw Failure(QStringLiteral("台帳が再計算と違います（%1 か所）。\n").arg(differences.size()) +
                  differences.join(u'\n'));
}

}  // namespace akarix::month
