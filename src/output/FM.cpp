#include "output/FM.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include "platform/forms/CommandButton.h"
#include "platform/print/PreviewPages.h"
#include "platform/runtime/Literals.h"

namespace akarix {

FM::FM(PrintPage page, const PreviewPlace& where)
    : PreviewForm(u"FM"_s, u"印刷プレビュー - "_s + where.page, where) {
    auto* shown = new PreviewPages({std::move(page)}, this);
    shown->setObjectName(u"Pages"_s);
    shown->setFrameShape(QFrame::NoFrame);
    shown->setZoom(100);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(shown);
    closeButton()->setVisible(stopButton() != nullptr);
    int barHeight = 0;
    if (stopButton() != nullptr) {
        constexpr int margin = 6;
        auto* bar = new QHBoxLayout;
        bar->setContentsMargins(margin, 0, margin, margin);
        bar->addStretch();
        bar->addWidget(closeButton());
        bar->addWidget(stopButton());
        layout->addLayout(bar);
        barHeight = bar->sizeHint().height() + layout->spacing();
    }

    // The title bar and the desk's own bars need some of the screen's height.
    constexpr int titleBar = 48;
    const QSize room = screen()->availableGeometry().size() - QSize(0, titleBar);
    const int scrollBar = shown->verticalScrollBar()->sizeHint().width();
    const QSize whole = shown->documentSize() + QSize(scrollBar, barHeight);
    if (whole.width() > room.width())
        shown->setZoom(0);  // a page is read line by line: its width must be seen
    resize(whole.boundedTo(room));
    shown->setFocus();
}

}  // namespace akarix
