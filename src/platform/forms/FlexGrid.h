#pragma once

#include <QTableView>
#include <functional>

#include "platform/forms/KeyEvent.h"

namespace akarix {

/// Column alignments of the grid, with their classic numbers.
enum GridAlignment { AlignLeftCenter = 1, AlignCenterCenter = 4, AlignRightCenter = 7 };

/// A grid of texts with one fixed head row (row 0, where FixedRows is 1). Rows and columns count from 0,
/// sizes are in twips. Setting a text outside the grid raises 381 (a row) or 9 (a column). Rows is a 32-bit
/// count; filling 32,000 rows and scrolling them is immediate, since nothing is laid out that is not seen.
class FlexGrid : public QTableView {
    Q_OBJECT

 public:
    explicit FlexGrid(QWidget* parent = nullptr);
    ~FlexGrid() override;

    int Rows() const;
    void SetRows(int rows);  ///< rows added are empty, rows taken away are lost; the present row stays inside
    int Cols() const;
    void SetCols(int cols);
    int FixedRows() const;
    void SetFixedRows(int rows);  ///< 0 or 1

    int Row() const;
    void SetRow(int row);
    int Col() const;
    void SetCol(int col);
    /// Row and column under the last mouse press; -1 outside every cell.
    int MouseRow() const;
    int MouseCol() const;

    QString TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, const QString& text);
    int ColWidth(int col) const;
    void SetColWidth(int col, int twips);
    int ColAlignment(int col) const;
    void SetColAlignment(int col, int alignment);

    /// The present cell's place inside the grid, in pixels; the cell is scrolled into view first.
    QRect CellRect();
    void Refresh();

 signals:
    void Click();
    /// The present cell has changed, by key, mouse or program.
    void RowColChange();
    void KeyDown(akarix::KeyEvent& event);
    void Scroll();

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

 private:
    class Model;
    Model* model_;
    int mouseRow_ = -1;
    int mouseCol_ = -1;
};

}  // namespace akarix
