#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/Hands.h"
#include "month/Options.h"
#include "month/Steps.h"
#include "month/WorkFolder.h"
#include "output/EX.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "values/Dates.h"

namespace akarix::month {

namespace {

const QString kBillingForm = u"Seikyu_frm"_s;
const QString kListForm = u"RepoSeikyu_frm"_s;
const QString kPrintButton = u"Btn(0)"_s;
const QString kShowButton = u"Btn(1)"_s;
const QString kExportButton = u"Btn(2)"_s;

void OpenBilling(Desk& desk) {
    OpenFromMenu(desk, 16, kBillingForm);
    std::map<QString, QString> typed = MonthTyped(desk.options);
    typed[u"ebox(2)"_s] = DateText(DateSerial(desk.options.year, desk.options.month + 1, 0));
    WalkTo(desk, u"ebox(5)"_s, typed);
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
    SaveAs(desk, kExportButton, desk.folder.path(u"billing-list.xlsx"_s), u"save-as"_s);
    CloseForm(desk, kListForm);
}

// The first customers alone make a single page, and so one preview.
void PreviewList(Desk& desk) {
    OpenFromMenu(desk, 7, kListForm);
    std::map<QString, QString> typed = MonthTyped(desk.options);
    typed[u"ebox(2)"_s] = u"1"_s;
    typed[u"ebox(3)"_s] = u"40"_s;
    WalkTo(desk, kShowButton, typed);
    desk.clerk.expect(u"Printer_frm"_s, [&desk](QWidget&) { desk.clerk.enter(); });
    ExpectPictured(desk, u"Preview_frm"_s, u"preview"_s, Qt::Key_Escape);
    gPrintPreview = true;  // the setting itself is read at the program's start alone
    desk.clerk.click(kPrintButton);
    gPrintPreview = false;
    CloseForm(desk, kListForm);
}

}  // namespace akarix::month
