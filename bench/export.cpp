// The export of a grid of 10,000 rows and 13 columns, against the same cells written by the bare library.

#include <xlsxwriter.h>

#include <QApplication>
#include <QTemporaryDir>
#include <array>

#include "Measure.h"
#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Literals.h"
#include "platform/sheet/GridExport.h"

namespace akarix::bench {
namespace {

constexpr int kRows = 10000;
constexpr int kCols = 13;
constexpr int kTextCols = 4;  // the first of them; the others are figures
constexpr int kRuns = 7;

QString CellText(int row, int col) {
    if (row == 0) return u"見出し%1"_s.arg(col);
    if (col == 0) return u"%1"_s.arg(row, 6, 10, QLatin1Char('0'));
    if (col < kTextCols) return u"得意先 %1 の %2"_s.arg(row).arg(col);
    return QLocale::c().toString((row * 37 + col * 1009) % 100000);
}

struct Cell {
    std::string text;
    double number = 0;
};

class Export {
 public:
    Export() {
        grid_.SetCols(kCols);
        grid_.SetRows(kRows + 1);
        peer_.resize(kRows + 1);
        for (int row = 0; row <= kRows; ++row) {
            for (int col = 0; col < kCols; ++col) {
                const QString text = CellText(row, col);
                grid_.SetTextMatrix(row, col, text);
                Cell& cell = peer_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
                cell.text = text.toStdString();
                cell.number = QLocale::c().toDouble(text);
            }
        }
        for (int col = kTextCols; col < kCols; ++col)
            grid_.SetColAlignment(col, AlignRightCenter);
    }

    void product() {
        GridSource source;
        source.rows = grid_.Rows();
        for (int col = 0; col < grid_.Cols(); ++col) {
            source.widths.push_back(grid_.ColWidth(col));
            source.alignments.push_back(grid_.ColAlignment(col));
        }
        source.text = [this](int row, int col) { return grid_.TextMatrix(row, col); };
        if (!WriteGridWorkbook(folder_.filePath(u"product.xlsx"_s), u"請求一覧"_s, u"2024/3分"_s, u"作成日"_s,
                               source))
            throw std::runtime_error("no workbook");
    }

    void peer() {
        lxw_workbook* book = workbook_new(folder_.filePath(u"peer.xlsx"_s).toUtf8().constData());
        lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
        lxw_format* text = workbook_add_format(book);
        format_set_border(text, LXW_BORDER_THIN);
        format_set_num_format(text, "@");
        lxw_format* figure = workbook_add_format(book);
        format_set_border(figure, LXW_BORDER_THIN);
        format_set_num_format(figure, "#,##0");
        for (lxw_row_t row = 0; row <= kRows; ++row) {
            for (lxw_col_t col = 0; col < kCols; ++col) {
                const Cell& cell = peer_[row][col];
                if (row > 0 && col >= kTextCols)
                    worksheet_write_number(sheet, row, col, cell.number, figure);
                else
                    worksheet_write_string(sheet, row, col, cell.text.c_str(), text);
            }
        }
        if (workbook_close(book) != LXW_NO_ERROR) throw std::runtime_error("no workbook");
    }

 private:
    FlexGrid grid_;
    std::vector<std::array<Cell, kCols>> peer_;
    QTemporaryDir folder_;
};

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    using namespace akarix::bench;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Export grid;
    Race race;
    for (int i = 0; i < kRuns; ++i) {
        race.product.push_back(Measure([&] { grid.product(); }));
        race.peer.push_back(Measure([&] { grid.peer(); }));
    }
    PrintHead();
    PrintRow("grid export, 10,000 x 13", race, Times(1.5));
    return 0;
}
