#include <QFile>
#include <QRegularExpression>

#include "clerk/Clerk.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/Hands.h"
#include "month/InvoicePages.h"
#include "month/Options.h"
#include "month/Steps.h"
#include "month/WorkFolder.h"
#include "output/PB.h"
#include "platform/forms/FlexGrid.h"
#include "platform/print/PrinterSurface.h"
#include "reports/InvoiceScript.h"
#include "store/Settings.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

const QString invoiceForm = QStringLiteral("SeikyuPrt_frm");
const QString printButton = QStringLiteral("Btn");

enum Column { ColMark = 0, ColDeal = 1, ColBefore = 3, ColSales = 9 };

/// By the page tree that ends the file.
int pagesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw Failure(path + QStringLiteral(" が読めません。"));
    static const QRegularExpression count(QStringLiteral("/Type /Pages.*?/Count (\\d+)"),
                                          QRegularExpression::DotMatchesEverythingOption);
    const QByteArray bytes = file.readAll();
    const auto tree = bytes.lastIndexOf("/Type /Pages");
    return count.match(QString::fromLatin1(bytes.mid(tree))).captured(1).toInt();
}

/// A customer who gets an invoice, if possible one with something on every part of it.
std::int32_t tellingCustomer(const FlexGrid& list) {
    std::int32_t found = 0;
    for (int row = 1; row < list.Rows(); ++row) {
        if (list.TextMatrix(row, ColMark).isEmpty()) continue;
        const bool tells = list.TextMatrix(row, ColBefore) != u"0" && list.TextMatrix(row, ColSales) != u"0";
        if (found == 0 || tells) found = list.TextMatrix(row, ColDeal).toInt();
        if (tells) break;
    }
    if (found == 0) throw Failure(QStringLiteral("請求書の出る得意先がありません。"));
    return found;
}

}  // namespace

void showInvoices(Desk& desk) {
    openFromMenu(desk, 5, invoiceForm);
    walkTo(desk, printButton, monthTyped(desk.options));
    takeForm(desk, QStringLiteral("invoices"), invoiceForm);
}

void printInvoices(Desk& desk) {
    const QString path = desk.folder.path(QStringLiteral("invoices.pdf"));
    printTo(desk, printButton, path);
    desk.invoicePages = pagesOf(path);
    const int wanted = invoicePagesOf(*gDb, desk.options.year, desk.options.month).all;
    if (desk.invoicePages != wanted) {
        throw Failure(
            QStringLiteral("請求書が %1 頁のはずが %2 頁です。").arg(wanted).arg(desk.invoicePages));
    }
}

// The drawn invoice breaks off at the balance, before anything is printed. Its script is left as it stands
// then, and the rest of the page is added to it here, so that the whole layout comes on paper.
void drawInvoice(Desk& desk) {
    const std::int32_t deal =
        tellingCustomer(desk.clerk.find<FlexGrid>(invoiceForm + QStringLiteral("/List")));
    const QString code = QString::number(deal);
    desk.clerk.bringToFront(invoiceForm);
    desk.clerk.click(QStringLiteral("ebox(3)"));
    walkTo(desk, printButton, {{QStringLiteral("ebox(3)"), code}, {QStringLiteral("ebox(4)"), code}});
    const QString path = desk.folder.path(QStringLiteral("script.pdf"));
    expectPrinter(desk, path);
    desk.clerk.answerAlert();
    const std::int16_t mode = gInvoiceMode;
    gInvoiceMode = 0;  // the setting itself is read at the program's start alone
    desk.clerk.click(printButton);
    gInvoiceMode = mode;
    const QString said = desk.clerk.lastSaid();
    if (!said.startsWith(QStringLiteral("3420"))) throw Failure(QStringLiteral("請求書の作図: ") + said);

    const InvoiceMonth invoice{deal, desk.options.year, desk.options.month};
    const auto ledger = ReadInvoiceLedger(invoice);
    AddInvoiceAccount(invoice, ReadInvoiceReading(invoice), ledger ? ledger->zenkaiGaku : Currency());
    PBRun();
    PrinterSurface::Current().EndDoc();
    requireFile(path);
    closeForm(desk, invoiceForm);
}

}  // namespace akarix::month
