#pragma once

#include <QColor>
#include <QString>
#include <map>
#include <optional>
#include <vector>

#include "platform/runtime/Literals.h"

namespace akarix {

/// One sheet of a workbook in memory: what a template says and what a report writes into it. Rows and columns
/// count from 1 as on paper ("A1" is row 1, column 1). Lengths are in points.

enum class HorizontalAlign { General, Left, Center, Right, Fill, Justify, CenterAcross, Distributed };
enum class VerticalAlign { Top, Center, Bottom, Justify, Distributed };
/// Of two that meet, the later one here is drawn.
enum class BorderStyle {
    None,
    Hair,
    Dotted,
    DashDotDot,
    DashDot,
    Dashed,
    Thin,
    MediumDashDotDot,
    MediumDashDot,
    MediumDashed,
    Medium,
    Double,
    Thick
};

struct Border {
    BorderStyle style = BorderStyle::None;
    QColor color = Qt::black;
};

struct SheetFont {
    QString name = u"ＭＳ Ｐゴシック"_s;
    double size = 11;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
    int raised = 0;  ///< 1 is superscript, -1 subscript, in small letters either way
    QColor color = Qt::black;
};

struct CellStyle {
    SheetFont font;
    QColor fill;  ///< invalid: none
    Border left, right, top, bottom;
    Border falling, rising;  ///< across the cell, from its upper and from its lower left corner
    HorizontalAlign horizontal = HorizontalAlign::General;
    VerticalAlign vertical = VerticalAlign::Bottom;
    bool wrap = false;
    bool shrink = false;
    int indent = 0;
    int rotation = 0;  ///< degrees counter-clockwise; 255 is upright letters from top to bottom
    QString numberFormat = u"General"_s;
};

struct CellAddress {
    int row = 0;
    int column = 0;
    friend auto operator<=>(const CellAddress&, const CellAddress&) = default;
};

struct CellRange {
    CellAddress first, last;
    bool contains(CellAddress a) const {
        return a.row >= first.row && a.row <= last.row && a.column >= first.column && a.column <= last.column;
    }
    friend bool operator==(const CellRange&, const CellRange&) = default;
};

/// "B5", "$B$5" or "B5:K61"; letters without case. Not an address: RuntimeError 1004.
CellRange ParseRange(const QString& address);

inline constexpr int kLastSheetRow = 1048576;
inline constexpr int kLastSheetColumn = 16384;

/// A stretch of a template's text.
struct TextRun {
    qsizetype length = 0;
    std::optional<SheetFont> font;  ///< the cell's own when empty
};

/// A cell holds text or a number; a number is shown through its style's number format.
struct Cell {
    QString text;
    std::optional<double> number;
    int style = 0;                   ///< index into Sheet::styles
    std::vector<TextRun> runs = {};  ///< the whole text, where parts of it have fonts of their own

    void blank() { *this = {{}, {}, style}; }
};

struct PageSetup {
    double paperWidth = 595.276, paperHeight = 841.89;  ///< A4 upright, already turned for landscape
    double left = 50.4, right = 50.4, top = 54, bottom = 54, header = 22.7, footer = 22.7;
    bool landscape = false;
    int scalePercent = 100;
    bool fitToPage = false;
    int fitWidth = 1, fitHeight = 1;  ///< pages; 0 is as many as needed
    bool centerHorizontally = false, centerVertically = false;
    bool gridLines = false;
    QString headerText, footerText;  ///< with the codes &L &C &R &P &N &D ...
    bool headersScale = true;        ///< these two are made smaller with the sheet
    std::optional<CellRange> printArea;
    int titleFirstRow = 0, titleLastRow = 0;  ///< rows repeated on each page; 0 is none
    std::vector<int> rowBreaks;               ///< a page ends behind these rows
};

class Sheet {
 public:
    QString name;
    std::vector<CellStyle> styles{CellStyle{}};  ///< style 0 is the workbook's Normal style
    std::map<CellAddress, Cell> cells;
    std::vector<CellRange> merges;
    std::map<int, double> columnWidths;          ///< points, for columns that have their own
    std::map<int, double> rowHeights;            ///< points, for rows that have their own
    std::map<int, int> columnStyles, rowStyles;  ///< for cells that are not in `cells`; a row's goes first
    double defaultColumnWidth = 54;
    double defaultRowHeight = 13.5;
    PageSetup page;
    QStringList warnings;  ///< what the reader met and cannot show (formulas, pictures, ...)

    /// Writes a value as typed into a spreadsheet: a text that is a plain number becomes one where the cell's
    /// format is not "@", a year/month/day or month/day a date where the format shows dates; an empty text
    /// blanks the block. Styles stay; of a merged block only the upper left cell takes a value. Bad address:
    /// 1004.
    void setValue(const QString& address, const QString& text);
    /// Merges a block, which keeps its first value alone, or takes apart every merge that the block touches.
    void setMerged(const QString& address, bool merged);

    double columnWidth(int column) const;
    double rowHeight(int row) const;
    /// False for a cell that no page shows: outside the printed area, hidden, or covered by a merge.
    bool prints(const QString& address) const;
    bool rowHidden(int row) const { return rowHeight(row) <= 0; }
    /// The text a cell shows: its number through its format.
    QString shownText(CellAddress address) const;
    const CellStyle& styleAt(CellAddress address) const;
    /// Last row and column that hold anything: a value, a fill or a border. {0, 0} when nothing does.
    CellAddress extent() const;

 private:
    int styleIndexAt(CellAddress address) const;
    bool hiddenByMerge(CellAddress address) const;
};

}  // namespace akarix
