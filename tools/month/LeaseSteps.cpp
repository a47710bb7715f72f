#include <optional>
#include <set>

#include "ledger/Rows.h"
#include "month/Hands.h"
#include "month/Steps.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

struct LeaseSlip {
    std::int32_t number = 0;
    std::int32_t deal = 0;
    QStringList ticks{};  ///< of the customer's leases
};

/// A slip of the run itself whose customer has bought nothing else in the month.
std::optional<LeaseSlip> LoneLeaseSlip(Database& db, int year, int month) {
    std::map<std::int32_t, LeaseSlip> slips;
    std::set<std::int32_t> buyers;
    for (const auto& row :
         ReadNumbers(db,
                     u"SELECT Dno,Dud.Deal,CreateAuto,ACU,Keihou FROM Dud INNER JOIN Deal ON "
                     "Dud.Deal=Deal.Code WHERE Nendo=%1 AND Getudo=%2 ORDER BY Dno"_s.arg(year)
                         .arg(month))) {
        const auto deal = static_cast<std::int32_t>(row[1]);
        if (row[2] != 1) buyers.insert(deal);
        QStringList ticks;
        if (row[3] == 1) ticks << u"ChkACU"_s;
        if (row[4] == 1) ticks << u"ChkKeihou"_s;
        slips[deal] = {static_cast<std::int32_t>(row[0]), deal, ticks};
    }
    for (const auto& [deal, slip] : slips)
        if (!buyers.contains(deal)) return slip;
    return std::nullopt;
}

}  // namespace

// The run leaves the slip of a lease that has ended as it stands: whoever ends it takes the slip away too.
void EndLease(Desk& desk) {
    const std::optional<LeaseSlip> slip = LoneLeaseSlip(*gDb, desk.options.year, desk.options.month);
    if (!slip) return;
    ChangeCustomer(desk, slip->deal, {}, slip->ticks);
    const QString form = u"Slip_frm"_s;
    OpenFromMenu(desk, 0, form);
    desk.clerk.fill(QString::number(slip->number));
    desk.clerk.answerConfirm(true);
    desk.clerk.click(u"Btn(1)"_s);
    CloseForm(desk, form);
    ++desk.endedLeases;
}

}  // namespace akarix::month
