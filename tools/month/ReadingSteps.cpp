#include <algorithm>
#include <cmath>

#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/Hands.h"
#include "month/Options.h"
#include "month/Steps.h"
#include "platform/forms/FlexGrid.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

const QString sheetForm = QStringLiteral("SlipG_frm");
const QString editor = QStringLiteral("tBox");

enum Column { ColDeal = 0, ColBefore = 2, ColExchanged = 3, ColStartsAt = 4, ColNow = 5 };

QString reading(int tenths) {
    return QStringLiteral("%1.%2").arg(tenths / 10).arg(tenths % 10);
}

int tenthsOf(QString shown) {
    return static_cast<int>(std::lround(shown.remove(u',').toDouble() * 10));
}

FlexGrid& sheet(Desk& desk) {
    return desk.clerk.find<FlexGrid>(sheetForm + QStringLiteral("/List"));
}

/// The cell under the editor; the mouse brings it there when the keyboard has not.
void goTo(Desk& desk, FlexGrid& list, int row, int col) {
    if (list.Row() != row || list.Col() != col) desk.clerk.clickCell(list, row, col);
    requireFocus(desk, editor);
}

void typeExchange(Desk& desk, FlexGrid& list, int row, const MeterNote& note) {
    goTo(desk, list, row, ColExchanged);
    desk.clerk.fill(reading(note.exchangedAt));
    goTo(desk, list, row, ColStartsAt);
    desk.clerk.fill(reading(note.startsAt));
}

}  // namespace

void openSheet(Desk& desk) {
    openFromMenu(desk, 1, sheetForm);
    walkTo(desk, QStringLiteral("Command1"),
           {{QStringLiteral("ebox(0)"), QString::number(desk.options.year)},
            {QStringLiteral("ebox(1)"), QString::number(desk.options.month)},
            {QStringLiteral("ebox(2)"), QStringLiteral("25")}});
    desk.clerk.enter();
    const int rows = sheet(desk).Rows() - 1;
    const int wanted = desk.options.customers + (desk.newCustomer != 0 ? 1 : 0);
    if (rows != wanted) {
        throw Failure(QStringLiteral("検針入力に %1 件あるはずが %2 件です。").arg(wanted).arg(rows));
    }
}

void typeReadings(Desk& desk) {
    MeterBook book(*gDb, desk.options.year, desk.options.month);
    if (desk.newCustomer != 0) book.addMeter(desk.newCustomer);
    FlexGrid& list = sheet(desk);
    const int pictured = std::min(14, list.Rows() - 1);
    for (int row = 1; row < list.Rows(); ++row) {
        const std::int32_t deal = list.TextMatrix(row, ColDeal).toInt();
        if (row == pictured) takeForm(desk, QStringLiteral("reading-sheet"), sheetForm);
        const std::optional<MeterNote> note = book.note(deal, tenthsOf(list.TextMatrix(row, ColBefore)));
        if (!note) continue;  // no meter: the mouse goes on to the next one
        if (note->exchangedAt != 0) typeExchange(desk, list, row, *note);
        goTo(desk, list, row, ColNow);
        desk.clerk.fill(reading(note->now));
        desk.typed.readings[deal] = *note;
    }
}

void saveSheet(Desk& desk) {
    takeForm(desk, QStringLiteral("reading-sheet-end"), sheetForm);
    desk.clerk.click(sheetForm + QStringLiteral("/Btn(2)"));
    if (sheet(desk).Rows() != 1) throw Failure(QStringLiteral("検針入力が保存の後に空になりません。"));
    closeForm(desk, sheetForm);
}

}  // namespace akarix::month
