#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include "platform/forms/Notice.h"
#include "platform/print/FileName.h"
#include "platform/print/PrintJob.h"
#include "platform/print/Printer.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr int TwipsPerInch = 1440;

[[noreturn]] void RaisePrinterError(const QString& text) {
    throw RuntimeError(482, text);
}

/// A known paper keeps its name, so that a queue feeds the right tray; the margins are the pages' own.
QPageLayout LayoutOf(QSizeF paper) {
    const bool landscape = paper.width() > paper.height();
    const QPageSize size(landscape ? paper.transposed() : paper, QPageSize::Point);
    QPageLayout layout(size, landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

/// Plays pages on a paged device. The device is begun with the first page, so that a document without pages
/// leaves nothing behind.
class DevicePages {
 public:
    explicit DevicePages(QPagedPaintDevice& device) : device_(device) {}

    bool begun() const { return painter_.isActive(); }

    void add(const std::vector<PrintPage>& pages, const QString& failure) {
        for (const PrintPage& page : pages) {
            device_.setPageLayout(LayoutOf(page.paper));
            if (!begun() ? !painter_.begin(&device_) : !device_.newPage()) RaisePrinterError(failure);
            painter_.save();
            const double unit = static_cast<double>(device_.logicalDpiX()) / TwipsPerInch;
            painter_.scale(unit, unit);
            if (page.insideMargins) painter_.translate(PrintableCorner(device_.pageLayout()));
            page.draw(painter_);
            painter_.restore();
        }
    }
    bool end() { return painter_.end(); }

 private:
    QPagedPaintDevice& device_;
    QPainter painter_;
};

class QueueSink : public PrintSink {
 public:
    QueueSink(const Printer& target, const QString& documentName)
        : printer_(QPrinter::HighResolution), pages_(printer_) {
        const QString name = target.Name();
        if (name.isEmpty()) RaisePrinterError(u"プリンタがありません。"_s);
        // An unknown name is not refused but silently answered with another queue.
        printer_.setPrinterName(name);
        if (printer_.printerName() != name || !printer_.isValid())
            RaisePrinterError(u"プリンタ '%1' が見つかりません。"_s.arg(name));
        printer_.setDocName(documentName);
        printer_.setCreator(u"Akarix"_s);
        printer_.setResolution(TwipsPerInch);
        printer_.setFullPage(true);
        printer_.setCopyCount(target.Copies());
        failure_ = u"プリンタ '%1' に印刷できません。"_s.arg(name);
    }
    ~QueueSink() override {
        if (pages_.begun()) printer_.abort();
    }

    void add(std::vector<PrintPage> pages) override { pages_.add(pages, failure_); }
    void finish() override {
        if (!pages_.begun()) return;
        if (!pages_.end() || printer_.printerState() == QPrinter::Error) RaisePrinterError(failure_);
    }

 private:
    QPrinter printer_;
    QString failure_;
    DevicePages pages_;
};

/// The file is written beside its place and takes it when complete: a failure leaves what was there before.
class PdfSink : public PrintSink {
 public:
    PdfSink(const QString& path, const QString& documentName)
        : path_(path), file_(path), writer_(&file_), pages_(writer_) {
        const QString reason = WhyNotWritable(path);
        failure_ = u"PDF ファイル '%1' に書き込めません。"_s.arg(path) + reason;
        if (!reason.isEmpty() || !file_.open(QIODevice::WriteOnly)) RaisePrinterError(failure_);
        writer_.setTitle(documentName);
        writer_.setCreator(u"Akarix"_s);
        writer_.setResolution(TwipsPerInch);
    }
    ~PdfSink() override {
        if (pages_.begun()) pages_.end();
        file_.cancelWriting();
    }

    void add(std::vector<PrintPage> pages) override { pages_.add(pages, failure_); }
    void finish() override {
        if (!pages_.begun()) return;
        if (!pages_.end() || !file_.commit()) RaisePrinterError(failure_);
        NoticeWritten(path_);
    }

 private:
    QString path_;
    QSaveFile file_;
    QPdfWriter writer_;
    QString failure_;
    DevicePages pages_;
};

}  // namespace

QPointF PrintableCorner(const QPageLayout& layout) {
    constexpr double twipsPerPoint = 20;
    QPageLayout own = layout;
    own.setMode(QPageLayout::StandardMode);
    own.setMargins(own.minimumMargins());
    return own.paintRect(QPageLayout::Point).topLeft() * twipsPerPoint;
}

std::unique_ptr<PrintSink> OpenPrinterSink(const QString& documentName) {
    Printer& printer = Printer::Current();
    if (printer.IsPdf()) return std::make_unique<PdfSink>(printer.NextPdfPath(), documentName);
    return std::make_unique<QueueSink>(printer, documentName);
}

}  // namespace akarix
