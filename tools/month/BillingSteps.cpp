#include "month/Hands.h"
#include "month/Steps.h"
#include "output/EX.h"
#include "platform/runtime/Calendar.h"
#include "values/Dates.h"

namespace akarix::month {

namespace {

const QString kBillingForm = u"Seikyu_frm"_s;
const QString kListForm = u"RepoSeikyu_frm"_s;
const QString kPrintButton = u"Btn(0)"_s;
const QString kShowButton = u"Btn(1)"_s;

void OpenBilling(Desk& desk) {
    OpenFromMenu(desk, 16, kBillingForm);
    const Date end = DateSerial(desk.options.year, desk.options.month + 1, 0);
    WalkTo(desk, Ebox(5), MonthTyped(desk.options, 0, {{Ebox(2), DateText(end)}}));
}

void Bill(Desk& desk) {
    desk.clerk.click(u"Command(0)"_s);
    const QString said = desk.clerk.lastSaid();
    if (said != u"集計しました。"_s) throw Failure(u"請求処理: "_s + said);
    CloseForm(desk, kBillingForm);
}

}  // namespace

void RunBilling(Desk& desk) {
    OpenBilling(desk);
    TakeForm(desk, u"billing"_s, kBillingForm);
    desk.clerk.expect(u"Alert_frm"_s, [&desk](QWidget& message) {
        desk.album.take(u"billing-done"_s, {&desk.clerk.form(kBillingForm), &message});
        desk.album.take(u"message"_s, {&message});
        desk.clerk.enter();
    });
    Bill(desk);
}

void RunBillingAgain(Desk& desk) {
    OpenBilling(desk);
    desk.clerk.answerAlert();
    Bill(desk);
}

void ShowList(Desk& desk) {
    OpenFromMenu(desk, 7, kListForm);
    WalkTo(desk, kShowButton, MonthTyped(desk.options));
    desk.clerk.enter();
    TakeForm(desk, u"billing-list"_s, kListForm);
}

void PrintList(Desk& desk) {
    PrintInto(desk, kPrintButton, desk.folder.path(u"billing-list.pdf"_s), u"printer"_s);
}

void ExportList(Desk& desk) {
    SaveAs(desk, u"Btn(2)"_s, desk.folder.path(u"billing-list.xlsx"_s), u"save-as"_s);
    CloseForm(desk, kListForm);
}

// The first customers alone make a single page, and so one preview.
void PreviewList(Desk& desk) {
    OpenFromMenu(desk, 7, kListForm);
    WalkTo(desk, kShowButton, MonthTyped(desk.options, 0, {{Ebox(2), u"1"_s}, {Ebox(3), u"40"_s}}));
    desk.clerk.expect(u"Printer_frm"_s, [&desk](QWidget&) { desk.clerk.enter(); });
    ExpectPictured(desk, u"Preview_frm"_s, u"preview"_s, Qt::Key_Escape);
    gPrintPreview = true;  // the setting itself is read at the program's start alone
    desk.clerk.click(kPrintButton);
    gPrintPreview = false;
    CloseForm(desk, kListForm);
}

}  // namespace akarix::month
