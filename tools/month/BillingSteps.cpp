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
#include "platform/runtime/DatePart.h"
#include "platform/runtime/DateSerial.h"
#include "values/Dates.h"

namespace akarix::month {

namespace {

const QString billingForm = QStringLiteral("Seikyu_frm");
const QString listForm = QStringLiteral("RepoSeikyu_frm");
const QString printButton = QStringLiteral("Btn(0)");
const QString showButton = QStringLiteral("Btn(1)");
const QString exportButton = QStringLiteral("Btn(2)");

void openBilling(Desk& desk) {
    openFromMenu(desk, 16, billingForm);
    std::map<QString, QString> typed = monthTyped(desk.options);
    typed[QStringLiteral("ebox(2)")] = DateText(DateSerial(desk.options.year, desk.options.month + 1, 0));
    walkTo(desk, QStringLiteral("ebox(5)"), typed);
}

void bill(Desk& desk) {
    desk.clerk.click(QStringLiteral("Command(0)"));
    const QString said = desk.clerk.lastSaid();
    if (said != QStringLiteral("集計しました。")) throw Failure(QStringLiteral("請求処理: ") + said);
    closeForm(desk, billingForm);
}

}  // namespace

void runBilling(Desk& desk) {
    openBilling(desk);
    takeForm(desk, QStringLiteral("billing"), billingForm);
    desk.clerk.expect(QStringLiteral("Alert_frm"), [&desk](QWidget& message) {
        desk.album.take(QStringLiteral("billing-done"), {&desk.clerk.form(billingForm), &message});
        desk.album.take(QStringLiteral("message"), {&message});
        desk.clerk.enter();
    });
    bill(desk);
}

void runBillingAgain(Desk& desk) {
    openBilling(desk);
    desk.clerk.answerAlert();
    bill(desk);
}

void showList(Desk& desk) {
    openFromMenu(desk, 7, listForm);
    walkTo(desk, showButton, monthTyped(desk.options));
    desk.clerk.enter();
    takeForm(desk, QStringLiteral("billing-list"), listForm);
}

void printList(Desk& desk) {
    printTo(desk, printButton, desk.folder.path(QStringLiteral("billing-list.pdf")),
            QStringLiteral("printer"));
}

void exportList(Desk& desk) {
    saveAs(desk, exportButton, desk.folder.path(QStringLiteral("billing-list.xlsx")),
           QStringLiteral("save-as"));
    closeForm(desk, listForm);
}

// The first customers alone make a single page, and so one preview.
void previewList(Desk& desk) {
    openFromMenu(desk, 7, listForm);
    std::map<QString, QString> typed = monthTyped(desk.options);
    typed[QStringLiteral("ebox(2)")] = QStringLiteral("1");
    typed[QStringLiteral("ebox(3)")] = QStringLiteral("40");
    walkTo(desk, showButton, typed);
    desk.clerk.expect(QStringLiteral("Printer_frm"), [&desk](QWidget&) { desk.clerk.enter(); });
    expectPictured(desk, QStringLiteral("Preview_frm"), QStringLiteral("preview"), Qt::Key_Escape);
    gPrintPreview = true;  // the setting itself is read at the program's start alone
    desk.clerk.click(printButton);
    gPrintPreview = false;
    closeForm(desk, listForm);
}

}  // namespace akarix::month
