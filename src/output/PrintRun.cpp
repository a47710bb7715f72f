#include "output/PrintRun.h"

#include "dialogs/AskConfirm.h"
#include "platform/forms/Notice.h"
#include "platform/print/PrinterDialog.h"

namespace akarix {
namespace {

QString chosenFor(const QString& document) {
    ShowPrinter(document);
    return document;
}

bool askStop() {
    return AskConfirm(QStringLiteral("残りの頁の表示を中止しますか？"), QStringLiteral("はい"),
                      QStringLiteral("いいえ"));
}

}  // namespace

PrintRun::PrintRun(const QString& document) : run_(chosenFor(document)) {
    current() = this;
}

PrintRun::~PrintRun() {
    current() = nullptr;
    if (run_.stopped()) {
        ShowNotice(QStringLiteral("%1 / %2 まで進んだところで中止しました。").arg(done_).arg(total_));
    }
}

void PrintRun::next(int index, int count) {
    document_ = index;
    documents_ = count;
    Count(index, count);
}

void PrintRun::Count(int done, int total) {
    if (current() == nullptr) return;
    current()->done_ = done;
    current()->total_ = total;
    current()->run_.step(done, total);
}

PreviewPlace PrintRun::NextPage(bool pagesFollow) {
    PrintRun* run = current();
    if (run == nullptr) return {{}, pagesFollow, &askStop};
    QString page = QStringLiteral("%1 頁").arg(++run->pages_);
    if (run->documents_ > 1) {
        page += QStringLiteral("（%1 / %2 件目）").arg(run->document_ + 1).arg(run->documents_);
    }
    return {page, pagesFollow || run->document_ + 1 < run->documents_, &askStop};
}

PrintRun*& PrintRun::current() {
    static PrintRun* run = nullptr;
    return run;
}

}  // namespace akarix
