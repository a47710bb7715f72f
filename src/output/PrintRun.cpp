#include "output/PrintRun.h"

#include "dialogs/AskConfirm.h"
#include "platform/forms/Notice.h"
#include "platform/print/PrinterDialog.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

QString ChosenFor(const QString& document) {
    ShowPrinter(document);
    return document;
}

bool AskStop() {
    return AskConfirm(u"残りの頁の表示を中止しますか？"_s, u"はい"_s, u"いいえ"_s);
}

}  // namespace

PrintRun::PrintRun(const QString& document) : run_(ChosenFor(document)) {
    current() = this;
}

PrintRun::~PrintRun() {
    current() = nullptr;
    if (run_.stopped()) ShowNotice(u"%1 / %2 まで進んだところで中止しました。"_s.arg(done_).arg(total_));
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
    if (run == nullptr) return {{}, pagesFollow, &AskStop};
    QString page = u"%1 頁"_s.arg(++run->pages_);
    if (run->documents_ > 1) page += u"（%1 / %2 件目）"_s.arg(run->document_ + 1).arg(run->documents_);
    return {page, pagesFollow || run->document_ + 1 < run->documents_, &AskStop};
}

PrintRun*& PrintRun::current() {
    static PrintRun* run = nullptr;
    return run;
}

}  // namespace akarix
