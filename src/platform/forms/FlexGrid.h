#pragma once

#include <QTableView>
#include <vector>

#include "platform/forms/KeyEvent.h"

namespace akarix {

/// Column alignments of the grid, with their classic numbers.
enum GridAlignment { AlignLeftCenter = 1, AlignCenterCenter = 4, AlignRightCenter = 7 };

/// A grid of texts with one fixed head row (row 0, where FixedRows is 1). Rows and columns count from 0,
/// sizes are in twips. A row outside the grid raises 381, a column 9. Rows is a 32-bit count; filling 32,000
/// rows and scrolling them is immediate, since nothing is laid out that is not seen.
///
/// The fixed row stays at the top while the others scroll. It is never the present cell by key or mouse, but
/// a click on it reports itself as MouseRow 0.
class FlexGrid : public QTableView {
    Q_OBJECT

 public:
    explicit FlexGrid(QWidget* parent = nullptr);
    ~FlexGrid() override;

    int Rows() const;
    /// Rows added are empty, rows taken away are lost; the present row stays inside, without RowColChange.
    void SetRows(int rows);
    int Cols() const;
    void SetCols(int cols);
    int FixedRows() const;
    void SetFixedRows(int rows);  ///< 0 or 1

    int Row() const { return row_; }
    void SetRow(int row);
    int Col() const { return col_; }
    void SetCol(int col);
    /// Row and column under the last mouse press; -1 outside every cell.
    int MouseRow() const { return mouseRow_; }
    int MouseCol() const { return mouseCol_; }

    QString TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, const QString& text);
    QString Text() const { return TextMatrix(row_, col_); }
    void SetText(const QString& text) { SetTextMatrix(row_, col_, text); }
    int ColWidth(int col) const;
    void SetColWidth(int col, int twips);  ///< 0 hides the column
    int ColAlignment(int col) const;
    void SetColAlignment(int col, int alignment);

    /// The present cell's place inside the grid, in pixels; the cell is scrolled into view first. Empty while
    /// there is no row below the fixed one.
    QRect CellRect();
    void Refresh();

    /// The size in pixels the grid asks for. It takes less where its form has less, and scrolls.
    void SetRoom(QSize wanted);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    void keyboardSearch(const QString& search) override;

 signals:
    /// A left click on a cell, the fixed row's cells among them.
    void Click();
    /// The present cell has changed, by key, mouse or program.
    void RowColChange();
    void KeyDown(akarix::KeyEvent& event);
    void Scroll();

 protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    int sizeHintForColumn(int column) const override;

 private:
    class Model;
    class CellPainter;

    void checkCell(int row, int col) const;
    void moveTo(int row, int col);
    void showPresentCell();
    void fitRowHeight();
    void headPressed(int col);

    Model* model_;
    std::vector<int> widths_;  ///< twips
    QSize wanted_;
    int row_ = 0;
    int col_ = 0;
    int mouseRow_ = -1;
    int mouseCol_ = -1;
    bool settling_ = false;  ///< the view's own current cell is being brought in line
    bool repaintAsked_ = false;
};

}  // namespace akarix
