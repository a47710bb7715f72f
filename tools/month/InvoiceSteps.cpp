#include <QFile>
#include <QRegularExpression>

#include "month/Hands.h"
#include "month/HardCases.h"
#include "month/Steps.h"
#include "output/PB.h"
#include "platform/print/PrinterSurface.h"
#include "reports/InvoiceScript.h"
#include "store/Settings.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

const QString kInvoiceForm = u"SeikyuPrt_frm"_s;
const QString kPrintButton = u"Btn"_s;

enum Column { ColMark = 0, ColDeal = 1, ColBefore = 3, ColSales = 9 };

/// By the page tree that ends the file.
int PagesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw Failure(path + u" が読めません。"_s);
    static const QRegularExpression count(u"/Type /Pages.*?/Count (\\d+)"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    const QByteArray bytes = file.readAll();
    const auto tree = bytes.lastIndexOf("/Type /Pages");
    return count.match(QString::fromLatin1(bytes.mid(tree))).captured(1).toInt();
}

/// A customer who gets an invoice, if possible one with something on every part of it.
std::int32_t TellingCustomer(const FlexGrid& list) {
    std::int32_t found = 0;
    for (int row = 1; row < list.Rows(); ++row) {
        if (list.TextMatrix(row, ColMark).isEmpty()) continue;
        const bool tells = list.TextMatrix(row, ColBefore) != u"0" && list.TextMatrix(row, ColSales) != u"0";
        if (found == 0 || tells) found = list.TextMatrix(row, ColDeal).toInt();
        if (tells) break;
    }
    if (found == 0) throw Failure(u"請求書の出る得意先がありません。"_s);
    return found;
}

}  // namespace

void ShowInvoices(Desk& desk) {
    OpenFromMenu(desk, 5, kInvoiceForm);
    WalkTo(desk, kPrintButton, MonthTyped(desk.options));
    TakeForm(desk, u"invoices"_s, kInvoiceForm);
}

void PrintInvoices(Desk& desk) {
    const QString path = desk.folder.path(u"invoices.pdf"_s);
    PrintInto(desk, kPrintButton, path);
    desk.invoicePages = PagesOf(path);
    const int wanted = InvoicePagesOf(*gDb, desk.options.year, desk.options.month).all;
    if (desk.invoicePages != wanted)
        throw Failure(u"請求書が %1 頁のはずが %2 頁です。"_s.arg(wanted).arg(desk.invoicePages));
}

// The drawn invoice breaks off at the balance, before anything is printed. Its script is left as it stands
// then, and the rest of the page is added to it here, so that the whole layout comes on paper.
void DrawInvoice(Desk& desk) {
    const std::int32_t deal = TellingCustomer(desk.clerk.find<FlexGrid>(kInvoiceForm + u"/List"_s));
    const QString code = QString::number(deal);
    desk.clerk.bringToFront(kInvoiceForm);
    desk.clerk.click(Ebox(3));
    WalkTo(desk, kPrintButton, {{Ebox(3), code}, {Ebox(4), code}});
    const QString path = desk.folder.path(u"script.pdf"_s);
    ExpectPrinter(desk, path);
    desk.clerk.answerAlert();
    const std::int16_t mode = gInvoiceMode;
    gInvoiceMode = 0;  // the setting itself is read at the program's start alone
    desk.clerk.click(kPrintButton);
    gInvoiceMode = mode;
    const QString said = desk.clerk.lastSaid();
    if (!said.startsWith(u"3420"_s)) throw Failure(u"請求書の作図: "_s + said);

    const InvoiceMonth invoice{deal, desk.options.year, desk.options.month};
    const auto ledger = ReadInvoiceLedger(invoice);
    AddInvoiceAccount(invoice, ReadInvoiceReading(invoice), ledger ? ledger->zenkaiGaku : Currency());
    PBRun();
    PrinterSurface::Current().EndDoc();
    RequireFile(path);
    CloseForm(desk, kInvoiceForm);
}

}  // namespace akarix::month
