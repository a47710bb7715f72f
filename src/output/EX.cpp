#include "output/EX.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>
#include <memory>
#include <optional>
#include <utility>

#include "output/PrintRun.h"
#include "output/TemplateCache.h"
#include "platform/forms/MsgBox.h"
#include "platform/print/PrintJob.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/sheet/SheetPainter.h"

namespace akarix {

namespace {

struct Workbook {
    QString name;
    Sheet sheet;
    std::shared_ptr<PrintSink> document;  ///< begun by the first page that goes to the printer
    int pages = 0;                        ///< printed or shown since the opening
};

struct PagedReport {
    int sheetRows = 0;
    int sheetFirstRow = 0;
    ReportForm* form = nullptr;
    std::optional<Recordset> set;
};

std::optional<Workbook> book;
PagedReport report;

Workbook& OpenBook() {
    if (!book) throw RuntimeError(91);
    return *book;
}

/// A run that died half-way leaves the workbook open; the pages it has printed stay printed, and go out as
/// soon as the program waits for the operator again.
void FinishWhenAbandoned(const std::weak_ptr<PrintSink>& document) {
    if (document.expired() || !book || book->document != document.lock()) return;
    try {
        std::exchange(book->document, nullptr)->finish();
    } catch (const RuntimeError& error) {
        MsgBox(error.description(), book->name);
    }
}

/// When the event loop turns with nothing under way. A long run lets it turn in its midst, so the loop alone
/// is no sign of a run's end.
void FinishLater(const std::weak_ptr<PrintSink>& document) {
    QTimer::singleShot(0, qApp, [document] {
        AfterAction(
            [document] { PrintRun::UnderWay() ? FinishLater(document) : FinishWhenAbandoned(document); });
    });
}

/// The pages of the sheet as it stands now; they keep a copy, since the template is filled again. Their
/// numbers go on from the pages before.
std::vector<PrintPage> NextPages(Workbook& open) {
    const auto sheet = std::make_shared<const Sheet>(open.sheet);
    const std::vector<SheetPage> layout = LayOutSheet(*sheet);
    const int count = open.pages + static_cast<int>(layout.size());
    std::vector<PrintPage> pages;
    pages.reserve(layout.size());
    for (const SheetPage& part : layout) {
        pages.push_back({QSizeF(sheet->page.paperWidth, sheet->page.paperHeight),
                         [sheet, part, number = ++open.pages, count](QPainter& painter) {
                             PaintSheet(painter, *sheet, part, number, count);
                         }});
    }
    return pages;
}

}  // namespace

void ExcelOpen(const QString& name) {
    if (book && book->document) FinishWhenAbandoned(book->document);
    book.reset();
    const QString path = u"Prt/%1.xlsx"_s.arg(name);
    if (!QFileInfo::exists(path))
        throw RuntimeError(1004, u"テンプレート '%1' が見つかりません。"_s.arg(path));
    book = Workbook{name, CachedTemplate(path), nullptr, 0};
}

void ExcelOpenPaged(const QString& name, int rows, int firstRow) {
    ExcelOpen(name);
    report.sheetRows = rows;
    report.sheetFirstRow = firstRow;
}

void ExcelCell(const QString& address, const QString& text) {
    OpenBook().sheet.setValue(address, text);
}

bool ExcelPrints(const QString& address) {
    return OpenBook().sheet.prints(address);
}

void ExcelMerge(const QString& address, const QString& flag) {
    OpenBook().sheet.setMerged(address, flag != u"0"_s);
}

void ExcelPrintPage(bool pagesFollow) {
    Workbook& open = OpenBook();
    std::vector<PrintPage> pages = NextPages(open);
    if (gPrintPreview) {
        if (!ShowPreview(open.name, pages, PrintRun::NextPage(pagesFollow)))
            throw RuntimeError(CancelledByOperator);
        return;
    }
    if (!open.document) {
        open.document = OpenPrinterSink(open.name);
        FinishLater(open.document);
    }
    open.document->add(std::move(pages));
}

void ExcelClose() {
    if (!book) return;
    const std::shared_ptr<PrintSink> document = std::exchange(book->document, nullptr);
    book.reset();
    if (document) document->finish();
    QCoreApplication::processEvents();
}

void SetReport(ReportForm* form, Recordset set) {
    report.form = form;
    report.set.emplace(std::move(set));
}

void ExcelRunPaged() {
    if (!report.form || !report.set) throw RuntimeError(91);
    ReportForm& form = *report.form;
    // Taken out of the state, so that a run that dies leaves no rows behind.
    Recordset set = std::move(*std::exchange(report.set, std::nullopt));

    set.MoveLast();
    const int count = set.RecordCount();
    set.MoveFirst();
    int page = 0;
    int line = 0;
    for (int i = 0; i < count; ++i) {
        PrintRun::Count(i, count);
        if (line == 0) {
            ++page;
            form.ClrDetail();
            form.PrintOutHead(page);
        }
        ++line;
        if (line >= report.sheetRows) {
            ExcelPrintPage(true);
            ++page;
            form.ClrDetail();
            form.PrintOutHead(page);
            line = 1;
        }
        form.PrintOutDetail(report.sheetFirstRow + line, set);
        set.MoveNext();
    }

    ++line;
    if (line >= report.sheetRows) {
        ExcelPrintPage();
        ++page;
        form.PrintOutHead(page);  // before the clearing here, unlike above: a head inside the block is lost
        form.ClrDetail();
        line = 1;
    }
    form.PrintOutDetailGokei(line, report.sheetFirstRow, page);
    if (line >= 2) ExcelPrintPage();
    ExcelClose();
}

}  // namespace akarix
