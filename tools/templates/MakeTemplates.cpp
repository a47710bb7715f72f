#include <QTextStream>

#include "TemplateBook.h"
#include "platform/runtime/Literals.h"

using namespace Qt::StringLiterals;

// Writes the workbooks that a new installation starts from into the folder named on the command line.
int main(int argc, char** argv) {
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"Prt"_s;
    const struct {
        QString name;
        bool (*write)(const QString&);
    } templates[] = {{u"請求一覧表.xlsx"_s, akarix::WriteBillingListTemplate},
                     {u"取引先一覧.xlsx"_s, akarix::WriteCustomerListTemplate},
                     {u"請求書.xlsx"_s, akarix::WriteInvoiceTemplate},
                     {u"口座振替合計表.xlsx"_s, akarix::WriteDebitTotalTemplate},
                     {u"口座振替明細表.xlsx"_s, akarix::WriteBankStatementTemplate},
                     {u"郵便局口座振替明細表.xlsx"_s, akarix::WritePostStatementTemplate},
                     {u"価格表.xlsx"_s, akarix::WritePriceListTemplate}};
    int failed = 0;
    for (const auto& [name, write] : templates) {
        if (write(folder + u'/' + name)) continue;
        QTextStream(stderr) << name << u": 書き込めません\n"_s;
        failed = 1;
    }
    return failed;
}
