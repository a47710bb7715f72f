#include "output/FM.h"

#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include "platform/print/PreviewPages.h"

namespace akarix {

FM::FM(PrintPage page, int number)
    : EscapableForm(QStringLiteral("FM"), QStringLiteral("印刷プレビュー - %1 頁").arg(number)) {
    auto* shown = new PreviewPages({std::move(page)}, this);
    shown->setObjectName(QStringLiteral("Pages"));
    shown->setFrameShape(QFrame::NoFrame);
    shown->setZoom(100);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(shown);

    // The title bar and the desk's own bars need some of the screen's height.
    constexpr int titleBar = 48;
    const QSize room = screen()->availableGeometry().size() - QSize(0, titleBar);
    const int scrollBar = shown->verticalScrollBar()->sizeHint().width();
    const QSize whole = shown->documentSize() + QSize(scrollBar, 0);
    if (whole.width() > room.width())
        shown->setZoom(0);  // a page is read line by line: its width must be seen
    resize(whole.boundedTo(room));
    shown->setFocus();
}

}  // namespace akarix
