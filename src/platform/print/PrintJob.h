#pragma once

#include <QPageLayout>
#include <QPainter>
#include <QSizeF>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace akarix {

/// One page to be drawn: paper size in points and the drawing itself, in twips from the paper's upper left
/// corner. It may be played more than once (a preview repaints), so it owns what it draws.
struct PrintPage {
    QSizeF paper{595.276, 841.89};
    std::function<void(QPainter&)> draw;
    /// On a printer, the drawing begins where the printer can print, and not at the paper's corner.
    bool insideMargins = false;
};

/// The corner of what a device can print on, in twips from the paper's own; a file's is the paper's.
QPointF PrintableCorner(const QPageLayout& layout);

/// Where finished pages go.
class PrintSink {
 public:
    /// A document that was not finished is dropped: nothing is printed, no file is left.
    virtual ~PrintSink() = default;
    /// Adds pages to the document under way.
    virtual void add(std::vector<PrintPage> pages) = 0;
    /// Ends the document: the job goes to the queue, the file is complete. Raises 482 (printer error) with a
    /// text the operator understands when it could not be written.
    virtual void finish() = 0;
};

/// A document on the current printer (queue or PDF file). Raises 482 when there is none or the target cannot
/// be written.
std::unique_ptr<PrintSink> OpenPrinterSink(const QString& documentName);

/// Where pages shown one window after the other stand in their run.
struct PreviewPlace {
    QString page;                 ///< "3 頁（2 / 294 件目）"; empty for pages of no run
    bool moreMayFollow = false;   ///< the window has 中止 then
    std::function<bool()> stops;  ///< Esc asks here whether to show no more; closing the window goes on
};

/// Shows pages in the preview window, modally: the form "Preview_frm" with the pages "Pages", the buttons
/// "Previous", "Next", "Close" and, where more may follow, "Stop", the list "Zoom". Esc closes it where
/// nothing follows. False when the operator wants to see no more.
bool ShowPreview(const QString& title, const std::vector<PrintPage>& pages, const PreviewPlace& place = {});

}  // namespace akarix
