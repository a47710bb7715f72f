#include <QTextStream>

#include "TemplateBook.h"

// Writes the workbooks that a new installation starts from into the folder named on the command line.
int main(int argc, char** argv) {
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("Prt");
    const struct {
        QString name;
        bool (*write)(const QString&);
    } templates[] = {{QStringLiteral("請求一覧表.xlsx"), akarix::WriteBillingListTemplate},
                     {QStringLiteral("取引先一覧.xlsx"), akarix::WriteCustomerListTemplate},
                     {QStringLiteral("請求書.xlsx"), akarix::WriteInvoiceTemplate},
                     {QStringLiteral("口座振替合計表.xlsx"), akarix::WriteDebitTotalTemplate},
                     {QStringLiteral("口座振替明細表.xlsx"), akarix::WriteBankStatementTemplate},
                     {QStringLiteral("郵便局口座振替明細表.xlsx"), akarix::WritePostStatementTemplate},
                     {QStringLiteral("価格表.xlsx"), akarix::WritePriceListTemplate}};
    int failed = 0;
    for (const auto& [name, write] : templates) {
        if (write(folder + u'/' + name)) continue;
        QTextStream(stderr) << name << QStringLiteral(": 書き込めません\n");
        failed = 1;
    }
    return failed;
}
