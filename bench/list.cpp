// The billing list of 100 pages, filled from the ledger and written as one PDF file.

#include <QApplication>
#include <QFile>

#include "BenchApplication.h"
#include "DealerFiles.h"
#include "Measure.h"
#include "output/EX.h"
#include "platform/print/Printer.h"
#include "platform/runtime/Literals.h"
#include "reports/RepoSeikyu_frm.h"

namespace akarix::bench {
namespace {

constexpr int kPages = 100;
constexpr int kRowsOfPage = 57;
constexpr int kSheetRows = 58;
constexpr int kSheetFirstRow = 4;
constexpr int kRuns = 5;

int Run() {
    // The last page is not full: it has the totals.
    DealerFiles files(kPages * kRowsOfPage - 1, 1);
    QFile::link(QStringLiteral(AKARIX_SOURCE_DIR "/Prt"), u"Prt"_s);
    gPrintPreview = false;
    auto& list = Form::Instance<RepoSeikyu_frm>();
    list.init();
    list.findChild<TextBox*>(u"ebox(0)"_s)->SetText(QString::number(kYear));
    list.findChild<TextBox*>(u"ebox(1)"_s)->SetText(QString::number(kMonth));
    const QString sql =
        u"SELECT TtoD.* FROM TtoD  INNER JOIN Deal ON TtoD.Deal=Deal.Code  WHERE Nendo= "
        "%1 AND   Getudo=%2 ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"_s.arg(kYear)
            .arg(kMonth);
    std::vector<Time> pages;
    for (int i = 0; i < kRuns; ++i) {
        Printer::Current().UsePdf(files.path("list"));
        QFile::remove(files.path("list"));
        const Time all = Measure([&] {
            const Action grouped;
            ExcelOpenPaged(u"請求一覧表"_s, kSheetRows, kSheetFirstRow);
            SetReport(&list, gDb->OpenRecordset(sql));
            ExcelRunPaged();
        });
        pages.push_back({all.wall / kPages, all.processor / kPages});
        if (!QFile::exists(files.path("list"))) return 1;
    }
    PrintHead();
    PrintRow("billing list, one of 100 pages to PDF", Median(pages), std::nullopt, Under(10));
    return 0;
}

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    const akarix::bench::BenchApplication application(argc, argv);
    return akarix::bench::Run();
}
