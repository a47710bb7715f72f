#include <QTextStream>

#include "TemplateBook.h"

using namespace Qt::StringLiterals;

// Writes the workbooks that a new installation starts from into the folder named on the command line.
int main(int argc, char** argv) {
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"Prt"_s;
    const struct {
        QString name;
        void (*make)(akarix::TemplateBook&);
    } templates[] = {{u"請求一覧表.xlsx"_s, akarix::MakeBillingList},
                     {u"取引先一覧.xlsx"_s, akarix::MakeCustomerList},
                     {u"請求書.xlsx"_s, akarix::MakeInvoice},
                     {u"口座振替合計表.xlsx"_s, akarix::MakeDebitTotal},
                     {u"口座振替明細表.xlsx"_s, akarix::MakeBankStatement},
                     {u"郵便局口座振替明細表.xlsx"_s, akarix::MakePostStatement},
                     {u"価格表.xlsx"_s, akarix::MakePriceList}};
    int failed = 0;
    for (const auto& [name, make] : templates) {
        akarix::TemplateBook book(folder + u'/' + name);
        make(book);
        if (book.save()) continue;
        QTextStream(stderr) << name << u": 書き込めません\n"_s;
        failed = 1;
    }
    return failed;
}
