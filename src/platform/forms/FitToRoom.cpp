#include "platform/forms/FitToRoom.h"

#include <QApplication>
#include <QGridLayout>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace akarix {
namespace {

/// All that stood on a form, scrolling.
class ScrollingBody : public QScrollArea {
 public:
    explicit ScrollingBody(QWidget& form) : QScrollArea(&form) {
        QPointer<QWidget> keyboard = form.focusWidget();
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setWidget(new QWidget);
        QLayout* layout = form.layout();
        layout->setSizeConstraint(QLayout::SetDefaultConstraint);
        form.setMinimumSize(0, 0);
        form.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        widget()->setLayout(layout);  // and with it the controls that it lays out
        // Those that stand over others, as a box over a grid's cell, belong to no layout.
        for (QWidget* other : form.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (other != this && !other->isWindow()) other->setParent(widget());
        auto* whole = new QVBoxLayout(&form);
        whole->setContentsMargins({});
        whole->addWidget(this);
        if (keyboard) keyboard->setFocus();
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now != nullptr && widget()->isAncestorOf(now)) ensureWidgetVisible(now);
        });
    }

    QSize sizeHint() const override {
        return widget()->sizeHint() +
               QSize(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
    }
};

void MoveCloser(QLayout& layout) {
    constexpr int leastMargin = 4;
    constexpr int betweenGroups = 4;
    constexpr int betweenLines = 1;
    const QMargins margins = layout.contentsMargins();
    layout.setContentsMargins(margins.left(), std::min(margins.top(), leastMargin), margins.right(),
                              std::min(margins.bottom(), leastMargin));
    if (auto* grid = qobject_cast<QGridLayout*>(&layout))
        grid->setVerticalSpacing(std::min(grid->verticalSpacing(), betweenLines));
    else if (auto* column = qobject_cast<QVBoxLayout*>(&layout))
        column->setSpacing(std::min(column->spacing(), betweenGroups));
    for (int i = 0; i < layout.count(); ++i) {
        const QLayoutItem* item = layout.itemAt(i);
        QLayout* inner = layout.itemAt(i)->layout();
        if (inner == nullptr && item->widget() != nullptr) inner = item->widget()->layout();
        if (inner != nullptr) MoveCloser(*inner);
    }
}

}  // namespace

void FitToRoom(QWidget& form, QSize room) {
    const auto fits = [&form, room] {
        QLayout& layout = *form.layout();
        layout.activate();
        const bool fixed = layout.sizeConstraint() == QLayout::SetFixedSize;
        const QSize least = fixed ? layout.totalSizeHint() : layout.totalMinimumSize();
        return least.boundedTo(room) == least;
    };
    if (fits()) return;
    MoveCloser(*form.layout());
    if (!fits()) new ScrollingBody(form);
}

}  // namespace akarix
