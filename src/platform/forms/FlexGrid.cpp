#include "platform/forms/FlexGrid.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>

#include "platform/forms/Control.h"
#include "platform/forms/Style.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

constexpr int kDefaultColumnTwips = 960;
constexpr int kCellMargin = 4;
constexpr int kTightMargin = 1;

int QtAlignment(int alignment) {
    switch (alignment) {
        case AlignLeftCenter:
            return Qt::AlignLeft | Qt::AlignVCenter;
        case AlignRightCenter:
            return Qt::AlignRight | Qt::AlignVCenter;
        default:
            return Qt::AlignCenter;
    }
}

}  // namespace

/// The texts, row by row in one vector. The view sees the rows below the fixed one.
class FlexGrid::Model : public QAbstractTableModel {
 public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : std::max(0, rows_ - fixed_);
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : cols_; }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole) return text(index.row() + fixed_, index.column());
        if (role == Qt::TextAlignmentRole) return QtAlignment(alignment(index.column()));
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || fixed_ == 0 || rows_ == 0) return {};
        if (role == Qt::DisplayRole) return text(0, section);
        if (role == Qt::TextAlignmentRole) return int{Qt::AlignCenter};
        return {};
    }

    int rows() const { return rows_; }
    int cols() const { return cols_; }
    int fixed() const { return fixed_; }
    const QString& text(int row, int col) const { return texts_[at(row, col)]; }
    void setText(int row, int col, const QString& text) { texts_[at(row, col)] = text; }
    int alignment(int col) const { return alignments_[static_cast<std::size_t>(col)]; }
    void setAlignment(int col, int alignment) { alignments_[static_cast<std::size_t>(col)] = alignment; }

    void setRows(int rows) {
        const int before = rowCount();
        const int after = std::max(0, rows - fixed_);
        if (after > before) beginInsertRows({}, before, after - 1);
        if (after < before) beginRemoveRows({}, after, before - 1);
        rows_ = rows;
        texts_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols_));
        if (after > before) endInsertRows();
        if (after < before) endRemoveRows();
    }
    void setCols(int cols) {
        beginResetModel();
        std::vector<QString> texts(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(cols));
        for (int row = 0; row < rows_; ++row) {
            for (int col = 0; col < std::min(cols, cols_); ++col) {
                texts[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) +
                      static_cast<std::size_t>(col)] = std::move(texts_[at(row, col)]);
            }
        }
        texts_ = std::move(texts);
        cols_ = cols;
        alignments_.resize(static_cast<std::size_t>(cols), AlignLeftCenter);
        endResetModel();
    }
    void setFixed(int rows) {
        beginResetModel();
        fixed_ = rows;
        endResetModel();
    }

 private:
    std::size_t at(int row, int col) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
               static_cast<std::size_t>(col);
    }

    std::vector<QString> texts_;
    std::vector<int> alignments_{AlignLeftCenter, AlignLeftCenter};
    int rows_ = 0;
    int cols_ = 2;
    int fixed_ = 1;
};

/// Draws the present row tinted and the present cell outlined, and nothing else that a cell does not need.
class FlexGrid::CellPainter : public QStyledItemDelegate {
 public:
    CellPainter(FlexGrid* grid, const Model* model) : QStyledItemDelegate(grid), grid_(grid), model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const int row = index.row() + model_->fixed();
        const bool presentRow = row == grid_->row_;
        const QRect cell = option.rect;
        if (presentRow) painter->fillRect(cell, PresentRowColour());
        const QString& text = model_->text(row, index.column());
        if (!text.isEmpty()) {
            painter->setPen(option.palette.color(QPalette::Text));
            // Columns have the widths they were given; a text that just fits gets its margin's room too.
            const bool tight = option.fontMetrics.horizontalAdvance(text) > cell.width() - 2 * kCellMargin;
            const int margin = tight ? kTightMargin : kCellMargin;
            const QRect room = cell.adjusted(margin, 0, -margin, 0);
            painter->drawText(room, QtAlignment(model_->alignment(index.column())) | Qt::TextSingleLine,
                              option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
        }
        if (presentRow && index.column() == grid_->col_) {
            painter->setPen(QPen(option.palette.color(QPalette::Highlight), grid_->hasFocus() ? 2 : 1));
            painter->drawRect(cell.adjusted(1, 1, -2, -2));
        }
    }

 private:
    const FlexGrid* grid_;
    const Model* model_;
};

FlexGrid::FlexGrid(QWidget* parent) : QTableView(parent), model_(new Model(this)) {
    RegisterControl(this);
    widths_.assign(2, kDefaultColumnTwips);
    setModel(model_);
    setItemDelegate(new CellPainter(this, model_));
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* head = horizontalHeader();
    head->setMinimumSectionSize(2);
    head->setHighlightSections(false);
    head->setSectionsClickable(true);
    head->setSectionsMovable(false);
    connect(head, &QHeaderView::sectionPressed, this, &FlexGrid::headPressed);
    connect(head, &QHeaderView::sectionClicked, this, &FlexGrid::Click);
    connect(head, &QHeaderView::sectionResized, this, [this](int col, int /*before*/, int pixels) {
        // Widths the operator drags replace the program's; hiding shows up here as a width of 0.
        int& twips = widths_[static_cast<std::size_t>(col)];
        if (Twips(twips) != pixels) twips = pixels * TwipsPerPixel;
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &FlexGrid::Scroll);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &FlexGrid::Scroll);
    fitRowHeight();
    model_->setRows(2);
    model_->setCols(2);
    SetRow(1);
}

FlexGrid::~FlexGrid() = default;

int FlexGrid::Rows() const {
    return model_->rows();
}

void FlexGrid::SetRows(int rows) {
    if (rows < 0) throw RuntimeError(381);
    if (rows == model_->rows()) return;
    settling_ = true;  // removing rows would move the view's current cell by itself
    model_->setRows(rows);
    settling_ = false;
    if (model_->fixed() == 1) horizontalHeader()->setVisible(rows > 0);
    const int before = row_;
    row_ = std::clamp(row_, std::min(model_->fixed(), std::max(0, rows - 1)), std::max(0, rows - 1));
    if (row_ != before || !currentIndex().isValid()) showPresentCell();
}

int FlexGrid::Cols() const {
    return model_->cols();
}

void FlexGrid::SetCols(int cols) {
    if (cols < 0) throw RuntimeError(9);
    if (cols == model_->cols()) return;
    const int before = model_->cols();
    settling_ = true;
    widths_.resize(static_cast<std::size_t>(std::max(cols, before)), kDefaultColumnTwips);
    model_->setCols(cols);
    widths_.resize(static_cast<std::size_t>(cols));
    settling_ = false;
    for (int col = 0; col < cols; ++col)
        SetColWidth(col, widths_[static_cast<std::size_t>(col)]);
    col_ = std::clamp(col_, 0, std::max(0, cols - 1));
    showPresentCell();
}

int FlexGrid::FixedRows() const {
    return model_->fixed();
}

void FlexGrid::SetFixedRows(int rows) {
    if (rows != 0 && rows != 1) throw RuntimeError(381);
    settling_ = true;
    model_->setFixed(rows);
    settling_ = false;
    horizontalHeader()->setVisible(rows == 1);
    row_ = std::clamp(row_, std::min(rows, std::max(0, Rows() - 1)), std::max(0, Rows() - 1));
    for (int col = 0; col < Cols(); ++col)
        SetColWidth(col, widths_[static_cast<std::size_t>(col)]);
    showPresentCell();
}

void FlexGrid::SetRow(int row) {
    checkCell(row, 0);
    moveTo(row, col_);
}

void FlexGrid::SetCol(int col) {
    if (col < 0 || col >= Cols()) throw RuntimeError(9);
    moveTo(row_, col);
}

QString FlexGrid::TextMatrix(int row, int col) const {
    checkCell(row, col);
    return model_->text(row, col);
}

void FlexGrid::SetTextMatrix(int row, int col, const QString& text) {
    checkCell(row, col);
    model_->setText(row, col, text);
    if (row < FixedRows()) {
        horizontalHeader()->viewport()->update();
    } else if (!repaintAsked_) {
        repaintAsked_ = true;  // one repaint for however many texts are set before it
        viewport()->update();
    }
}

int FlexGrid::ColWidth(int col) const {
    if (col < 0 || col >= Cols()) throw RuntimeError(9);
    return widths_[static_cast<std::size_t>(col)];
}

void FlexGrid::SetColWidth(int col, int twips) {
    if (col < 0 || col >= Cols()) throw RuntimeError(9);
    const int width = twips < 0 ? kDefaultColumnTwips : twips;
    widths_[static_cast<std::size_t>(col)] = width;
    setColumnHidden(col, width == 0);
    if (width > 0) setColumnWidth(col, Twips(width));
}

int FlexGrid::ColAlignment(int col) const {
    if (col < 0 || col >= Cols()) throw RuntimeError(9);
    return model_->alignment(col);
}

void FlexGrid::SetColAlignment(int col, int alignment) {
    if (col < 0 || col >= Cols()) throw RuntimeError(9);
    model_->setAlignment(col, alignment);
    viewport()->update();
}

QRect FlexGrid::CellRect() {
    const QModelIndex index = model_->index(row_ - FixedRows(), col_);
    if (!index.isValid()) return {};
    scrollTo(index);
    return visualRect(index).translated(viewport()->pos());
}

void FlexGrid::Refresh() {
    horizontalHeader()->viewport()->update();
    viewport()->update();
}

void FlexGrid::SetRoom(QSize wanted) {
    wanted_ = wanted;
    updateGeometry();
}

QSize FlexGrid::sizeHint() const {
    return wanted_.isValid() ? wanted_.expandedTo(minimumSizeHint()) : QTableView::sizeHint();
}

QSize FlexGrid::minimumSizeHint() const {
    constexpr int leastWidth = 240;
    constexpr int leastRows = 5;
    const int bars = horizontalScrollBar()->sizeHint().height() + 2 * frameWidth();
    const int height =
        horizontalHeader()->sizeHint().height() + leastRows * verticalHeader()->defaultSectionSize() + bars;
    return {wanted_.isValid() ? std::min(wanted_.width(), leastWidth) : leastWidth, height};
}

void FlexGrid::keyboardSearch(const QString& /*search*/) {
    // A stray letter must not carry the present row away through 32,000 rows.
}

bool FlexGrid::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        OfferKey(*static_cast<QKeyEvent*>(event), {}, [this](KeyEvent& press) { emit KeyDown(press); })) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    mouseRow_ = index.isValid() ? index.row() + FixedRows() : -1;
    mouseCol_ = index.isValid() ? index.column() : -1;
    QTableView::mousePressEvent(event);
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && mouseRow_ >= 0 && index.isValid()) emit Click();
}

void FlexGrid::headPressed(int col) {
    mouseRow_ = 0;
    mouseCol_ = col;
}

void FlexGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    viewport()->update();
}

void FlexGrid::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}

void FlexGrid::paintEvent(QPaintEvent* event) {
    repaintAsked_ = false;
    QTableView::paintEvent(event);
}

void FlexGrid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) fitRowHeight();
}

void FlexGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (settling_ || !current.isValid()) return;
    moveTo(current.row() + FixedRows(), current.column());
}

int FlexGrid::sizeHintForColumn(int column) const {
    return Twips(ColWidth(column));  // nobody wants 32,000 texts measured
}

void FlexGrid::checkCell(int row, int col) const {
    if (row < 0 || row >= Rows()) throw RuntimeError(381);
    if (col < 0 || (col >= Cols() && col > 0)) throw RuntimeError(9);
}

void FlexGrid::moveTo(int row, int col) {
    const bool changed = row != row_ || col != col_;
    row_ = row;
    col_ = col;
    showPresentCell();
    if (changed) emit RowColChange();
}

void FlexGrid::showPresentCell() {
    settling_ = true;
    setCurrentIndex(model_->index(row_ - FixedRows(), col_));
    settling_ = false;
    viewport()->update();
}

void FlexGrid::fitRowHeight() {
    const int height = fontMetrics().height() + 6;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

}  // namespace akarix
