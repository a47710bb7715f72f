#pragma once

#include <QAbstractScrollArea>
#include <vector>

#include "platform/print/PrintJob.h"

namespace akarix {

/// The pages of a document one below the other. Nothing is drawn before it is seen: a page is played again
/// for each repaint, so that a long document opens at once.
class PreviewPages : public QAbstractScrollArea {
    Q_OBJECT

 public:
    explicit PreviewPages(std::vector<PrintPage> pages, QWidget* parent = nullptr);

    int pageCount() const { return static_cast<int>(pages_.size()); }
    /// The page that fills most of the view, from 0.
    int currentPage() const;
    void goTo(int page);
    /// In percent of the paper's size; 0 fits the width of the window.
    void setZoom(int percent);
    /// What all pages and the gaps around them take at the present zoom, in pixels.
    QSize documentSize() const;

 signals:
    void currentPageChanged(int page);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

 private:
    void layOut();
    /// Where a page stands in the view, in its pixels.
    QRectF pageRect(int page) const;
    double pixelsPerPoint() const;

    std::vector<PrintPage> pages_;
    std::vector<double> tops_;  ///< of each page, in pixels from the top of the document
    int zoom_ = 0;
    int shownPage_ = 0;
};

}  // namespace akarix
