#include "platform/print/PreviewPages.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <algorithm>

namespace akarix {
namespace {

constexpr int Gap = 12;
constexpr double PointsPerInch = 72;
constexpr double TwipsPerPoint = 20;

}  // namespace

PreviewPages::PreviewPages(std::vector<PrintPage> pages, QWidget* parent)
    : QAbstractScrollArea(parent), pages_(std::move(pages)) {
    // Always there: a bar that comes and goes would change the width that the pages are fitted to.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Dark);
}

double PreviewPages::pixelsPerPoint() const {
    if (zoom_ > 0) return logicalDpiX() / PointsPerInch * zoom_ / 100.0;
    double widest = 1;
    for (const PrintPage& page : pages_)
        widest = std::max(widest, page.paper.width());
    return std::max(0.05, (viewport()->width() - 2.0 * Gap) / widest);
}

QSize PreviewPages::documentSize() const {
    const double scale = pixelsPerPoint();
    double height = Gap;
    double widest = 0;
    for (const PrintPage& page : pages_) {
        height += page.paper.height() * scale + Gap;
        widest = std::max(widest, page.paper.width() * scale + 2 * Gap);
    }
    return QSizeF(widest, height).toSize();
}

void PreviewPages::layOut() {
    const double scale = pixelsPerPoint();
    tops_.clear();
    double y = Gap;
    for (const PrintPage& page : pages_) {
        tops_.push_back(y);
        y += page.paper.height() * scale + Gap;
    }
    const QSize document = documentSize();
    const auto setRange = [](QScrollBar* bar, int content, int view) {
        bar->setRange(0, std::max(0, content - view));
        bar->setPageStep(view);
        bar->setSingleStep(40);
    };
    setRange(verticalScrollBar(), document.height(), viewport()->height());
    setRange(horizontalScrollBar(), document.width(), viewport()->width());
    viewport()->update();
}

QRectF PreviewPages::pageRect(int page) const {
    const double scale = pixelsPerPoint();
    const QSizeF size = pages_[static_cast<size_t>(page)].paper * scale;
    const double left = std::max<double>(Gap, (viewport()->width() - size.width()) / 2);
    return {QPointF(left - horizontalScrollBar()->value(),
                    tops_[static_cast<size_t>(page)] - verticalScrollBar()->value()),
            size};
}

int PreviewPages::currentPage() const {
    const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
    const auto next = std::upper_bound(tops_.begin(), tops_.end(), middle);
    return std::max(0, static_cast<int>(next - tops_.begin()) - 1);
}

void PreviewPages::goTo(int page) {
    if (tops_.empty()) return;
    const int wanted = std::clamp(page, 0, pageCount() - 1);
    verticalScrollBar()->setValue(static_cast<int>(tops_[static_cast<size_t>(wanted)]) - Gap);
}

void PreviewPages::setZoom(int percent) {
    const int page = currentPage();
    zoom_ = percent;
    layOut();
    goTo(page);
}

void PreviewPages::resizeEvent(QResizeEvent*) {
    const int page = currentPage();
    layOut();
    if (zoom_ == 0) goTo(page);
}

void PreviewPages::scrollContentsBy(int, int) {
    viewport()->update();
    if (const int page = currentPage(); page != shownPage_) {
        shownPage_ = page;
        emit currentPageChanged(page);
    }
}

void PreviewPages::keyPressEvent(QKeyEvent* event) {
    if (pageCount() == 1) {  // there is no page to go to: the keys move on the one that is there
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
        case Qt::Key_PageDown:
            goTo(currentPage() + 1);
            break;
        case Qt::Key_PageUp:
            goTo(currentPage() - 1);
            break;
        case Qt::Key_Home:
            goTo(0);
            break;
        case Qt::Key_End:
            goTo(pageCount() - 1);
            break;
        default:
            QAbstractScrollArea::keyPressEvent(event);
    }
}

void PreviewPages::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(event->rect(), palette().color(QPalette::Dark));
    for (int i = 0; i < pageCount(); ++i) {
        const QRectF paper = pageRect(i);
        if (!paper.intersects(event->rect())) continue;
        painter.fillRect(paper, Qt::white);
        painter.save();
        painter.setClipRect(paper);
        painter.translate(paper.topLeft());
        const double unit = pixelsPerPoint() / TwipsPerPoint;
        painter.scale(unit, unit);
        painter.setPen(Qt::black);
        pages_[static_cast<size_t>(i)].draw(painter);
        painter.restore();
    }
}

}  // namespace akarix
