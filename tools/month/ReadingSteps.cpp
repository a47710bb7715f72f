#include <algorithm>
#include <cmath>

#include "month/Hands.h"
#include "month/Steps.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

const QString kSheetForm = u"SlipG_frm"_s;
const QString kEditor = u"tBox"_s;

enum Column { ColDeal = 0, ColBefore = 2, ColExchanged = 3, ColStartsAt = 4, ColNow = 5 };

QString Reading(int tenths) {
    return u"%1.%2"_s.arg(tenths / 10).arg(tenths % 10);
}

int TenthsOf(QString shown) {
    return static_cast<int>(std::lround(shown.remove(u',').toDouble() * 10));
}

FlexGrid& Sheet(Desk& desk) {
    return desk.clerk.find<FlexGrid>(kSheetForm + u"/List"_s);
}

/// The cell under the editor; the mouse brings it there when the keyboard has not.
void GoTo(Desk& desk, FlexGrid& list, int row, int col) {
    if (list.Row() != row || list.Col() != col) desk.clerk.clickCell(list, row, col);
    RequireFocus(desk, kEditor);
}

void TypeExchange(Desk& desk, FlexGrid& list, int row, const MeterNote& note) {
    GoTo(desk, list, row, ColExchanged);
    desk.clerk.fill(Reading(note.exchangedAt));
    GoTo(desk, list, row, ColStartsAt);
    desk.clerk.fill(Reading(note.startsAt));
}

}  // namespace

void OpenSheet(Desk& desk) {
    OpenFromMenu(desk, 1, kSheetForm);
    WalkTo(desk, u"Command1"_s, MonthTyped(desk.options, 0, {{Ebox(2), u"25"_s}}));
    desk.clerk.enter();
    const int rows = Sheet(desk).Rows() - 1;
    const int wanted = desk.options.customers + (desk.newCustomer != 0 ? 1 : 0);
    if (rows != wanted) throw Failure(u"検針入力に %1 件あるはずが %2 件です。"_s.arg(wanted).arg(rows));
}

void TypeReadings(Desk& desk) {
    MeterBook book(*gDb, desk.options.year, desk.options.month);
    if (desk.newCustomer != 0) book.addMeter(desk.newCustomer);
    FlexGrid& list = Sheet(desk);
    const int pictured = std::min(14, list.Rows() - 1);
    for (int row = 1; row < list.Rows(); ++row) {
        const std::int32_t deal = list.TextMatrix(row, ColDeal).toInt();
        if (row == pictured) TakeForm(desk, u"reading-sheet"_s, kSheetForm);
        const std::optional<MeterNote> note = book.note(deal, TenthsOf(list.TextMatrix(row, ColBefore)));
        if (!note) continue;  // no meter: the mouse goes on to the next one
        if (note->exchangedAt != 0) TypeExchange(desk, list, row, *note);
        GoTo(desk, list, row, ColNow);
        desk.clerk.fill(Reading(note->now));
        desk.typed.readings[deal] = *note;
    }
}

void SaveSheet(Desk& desk) {
    TakeForm(desk, u"reading-sheet-end"_s, kSheetForm);
    desk.clerk.click(kSheetForm + u"/Btn(2)"_s);
    if (Sheet(desk).Rows() != 1) throw Failure(u"検針入力が保存の後に空になりません。"_s);
    CloseForm(desk, kSheetForm);
}

}  // namespace akarix::month
