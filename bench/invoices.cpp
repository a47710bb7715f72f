// Invoices filled from the ledger into the template and written as one PDF file: the time a page takes, and
// what the process holds in memory with 100 and with 1,000 of them.

#include <sys/resource.h>

#include <QApplication>
#include <QFile>

#include "BenchApplication.h"
#include "DealerFiles.h"
#include "Measure.h"
#include "output/EX.h"
#include "platform/print/Printer.h"
#include "platform/runtime/Literals.h"
#include "reports/InvoiceSheet.h"
#include "store/FieldValue.h"

namespace akarix::bench {
namespace {

constexpr int kFew = 100;
constexpr int kMany = 1000;
constexpr int kRuns = 5;

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    constexpr double kilobytes = 1024;
    return static_cast<double>(usage.ru_maxrss) / kilobytes;
}

/// Customers with a reading, in the order of the round.
std::vector<InvoiceMonth> Invoices() {
    std::vector<InvoiceMonth> all;
    Recordset set = gDb->OpenRecordset(
        u"SELECT Dgd.Deal FROM Dgd INNER JOIN Deal ON Deal.Code=Dgd.Deal WHERE Dgd.Nendo=%1 "
        "AND Dgd.Getudo=%2 ORDER BY Deal.Rte,Deal.Haisou,Deal.Code"_s.arg(kYear)
            .arg(kMonth));
    for (; !set.Eof() && all.size() < kMany; set.MoveNext())
        all.push_back({LongOf(set[u"Deal"_s]), kYear, kMonth});
    return all;
}

Time Issue(const std::vector<InvoiceMonth>& all, std::size_t count, const QString& path) {
    Printer::Current().UsePdf(path);
    QFile::remove(path);
    const Time time = Measure([&] {
        const Action grouped;
        OpenInvoiceSheet();
        for (std::size_t i = 0; i < count; ++i)
            PrintInvoice(all[i]);
        ExcelClose();
    });
    const auto pages = static_cast<double>(count);
    return {time.wall / pages, time.processor / pages};
}

int Run() {
    constexpr int kWithoutGas = 100;  // a few customers are never read
    constexpr int kMonths = 2;
    DealerFiles files(kMany + kWithoutGas, kMonths);
    QFile::link(QStringLiteral(AKARIX_SOURCE_DIR "/Prt"), u"Prt"_s);
    gPrintPreview = false;
    const std::vector<InvoiceMonth> all = Invoices();
    if (all.size() < kMany) return 1;

    PrintHead();
    Issue(all, kFew, files.path("few"));
    const double few = PeakMegabytes();
    std::vector<Time> pages;
    pages.reserve(kRuns);
    for (int i = 0; i < kRuns; ++i)
        pages.push_back(Issue(all, kMany, files.path("many")));
    const double many = PeakMegabytes();
    PrintRow("invoices, one of 1,000 to PDF", Median(pages), std::nullopt, Under(10));
    constexpr double most = 1.2;
    std::printf("| invoices, peak MB, 1,000 against 100 | %.1f | %.1f | %.2f | at most %g times | %s |\n",
                many, few, many / few, most, many / few <= most ? "met" : "MISSED");
    return 0;
}

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    const akarix::bench::BenchApplication application(argc, argv);
    return akarix::bench::Run();
}
