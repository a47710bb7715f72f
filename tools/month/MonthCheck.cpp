#include "month/MonthCheck.h"

#include <QStringList>
#include <set>

#include "ledger/ChargeCheck.h"
#include "ledger/LedgerProof.h"
#include "ledger/Rows.h"
#include "month/DebitCheck.h"
#include "month/Failure.h"
#include "month/TypedMonth.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

namespace {

struct Stored {
    std::int32_t deal = 0;
    std::int64_t month = 0;
    std::int64_t scaled = 0;
    friend bool operator==(const Stored&, const Stored&) = default;
};

QStringList CompareReadings(Database& db, int year, int month, std::map<std::int32_t, MeterNote> typed) {
    QStringList differences;
    for (const auto& row : ReadNumbers(db,
                                       u"SELECT Deal,KoukanMeter,KoukanGoMeter,KonkaiMeter FROM Dgd "
                                       "WHERE Nendo=%1 AND Getudo=%2 ORDER BY Deal"_s.arg(year)
                                           .arg(month))) {
        const auto deal = static_cast<std::int32_t>(row[0]);
        const auto tenths = [&row](std::size_t column) {
            return static_cast<int>(row[column] / (Currency::kScale / 10));
        };
        const MeterNote stored{tenths(1), tenths(2), tenths(3)};
        const auto note = typed.find(deal);
        if (stored != (note == typed.end() ? MeterNote() : note->second))
            differences << u"得意先 %1: 入力した検針値と違います。"_s.arg(deal);
        if (note != typed.end()) typed.erase(note);
    }
    for (const auto& [deal, note] : typed)
        differences << u"得意先 %1: 入力した検針がありません。"_s.arg(deal);
    return differences;
}

/// The documents from a number on, as the store has them in the month.
std::map<std::int32_t, Stored> DocumentsOf(Database& db, const QString& source, std::int32_t first) {
    std::map<std::int32_t, Stored> documents;
    for (const auto& row :
         ReadNumbers(db, u"SELECT Dno,Deal,Nendo,Getudo,Gaku FROM %1 Dno>=%2"_s.arg(source).arg(first))) {
        Stored& document = documents[static_cast<std::int32_t>(row[0])];
        document.deal = static_cast<std::int32_t>(row[1]);
        document.month = row[2] * 12 + row[3];
        document.scaled += row[4];
    }
    return documents;
}

/// The clerk typed the last documents of the store, save for what the run itself has written.
QStringList CompareDocuments(Database& db, int month, const QString& name, const QString& source,
                             const DocumentNotes& typed) {
    QStringList differences;
    if (typed.empty()) return differences;
    auto stored = DocumentsOf(db, source, typed.begin()->first);
    for (const auto& [dno, note] : typed) {
        const auto found = stored.extract(dno);
        if (found.empty())
            differences << u"%1 %2: 入力した伝票がありません。"_s.arg(name).arg(dno);
        else if (found.mapped() !=
                 Stored{note.deal, month + (note.nextMonth ? 1 : 0), note.yen * Currency::kScale})
            differences << u"%1 %2: 入力した内容と違います。"_s.arg(name).arg(dno);
    }
    for (const auto& [dno, document] : stored)
        differences << u"%1 %2: 入力していない伝票です。"_s.arg(name).arg(dno);
    return differences;
}

/// A slip of its own for each customer who leases anything, with a line for each device, and no other.
QStringList CompareLeases(Database& db, int year, int month, const TypedMonth& typed) {
    using Fees = std::vector<std::int64_t>;  // in the order of the lines
    std::map<std::int32_t, std::map<std::int64_t, Fees>> slips;
    for (const auto& row : ReadNumbers(db,
                                       u"SELECT Deal,Dno,Gaku FROM Dud WHERE Nendo=%1 AND "
                                       "Getudo=%2 AND CreateAuto=1 ORDER BY Dno,Eda"_s.arg(year)
                                           .arg(month)))
        slips[static_cast<std::int32_t>(row[0])][row[1]].push_back(row[2] / Currency::kScale);
    QStringList differences;
    for (const auto& row : ReadNumbers(db, u"SELECT Code,ACU,Keihou FROM Deal"_s)) {
        const auto deal = static_cast<std::int32_t>(row[0]);
        Fees wanted;
        if (row[1] == 1) wanted.push_back(typed.acuFee);
        if (row[2] == 1) wanted.push_back(typed.alarmFee);
        const auto stored = slips.extract(deal);
        const bool right = wanted.empty() ? stored.empty()
                                          : !stored.empty() && stored.mapped().size() == 1 &&
                                                stored.mapped().begin()->second == wanted;
        if (!right) differences << u"得意先 %1: リース伝票が違います。"_s.arg(deal);
    }
    return differences;
}

/// The run gives every customer a row, also one who has nothing to pay.
QStringList RequireRows(Database& db, int year, int month) {
    std::set<std::int64_t> billed;
    for (const auto& row :
         ReadNumbers(db, u"SELECT Deal FROM TtoD WHERE Nendo=%1 AND Getudo=%2"_s.arg(year).arg(month)))
        billed.insert(row[0]);
    QStringList differences;
    for (const auto& row : ReadNumbers(db, u"SELECT Code FROM Deal"_s))
        if (!billed.contains(row[0])) differences << u"得意先 %1: 台帳に行がありません。"_s.arg(row[0]);
    return differences;
}

}  // namespace

void CheckMonth(Database& db, int year, int month, const TypedMonth& typed) {
    QStringList differences = CompareReadings(db, year, month, typed.readings);
    const int index = year * 12 + month;
    differences += CompareDocuments(db, index, u"売上伝票"_s, u"Dud WHERE CreateAuto=0 AND"_s, typed.slips);
    differences += CompareDocuments(db, index, u"入金"_s, u"Dny WHERE"_s, typed.payments);
    differences += CompareDebits(db, year, month, typed.debits);
    differences += CompareLeases(db, year, month, typed);
    differences += RequireRows(db, year, month);
    for (const Difference& difference : CheckCharges(db, {year, month}))
        differences << Describe(difference);
    for (const LedgerFinding& finding : ProveLedger(db).findings)
        differences << Describe(finding.difference);
    if (differences.isEmpty()) return;
    throw Failure(u"台帳が再計算と違います（%1 か所）。\n"_s.arg(differences.size()) +
                  differences.join(u'\n'));
}

}  // namespace akarix::month
