#include "platform/sheet/SheetPainter.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

constexpr double A4Width = 595.276, A4Height = 841.89;

/// Rows of 13.5 points, columns of 54, margins of 54 above and below and 50.4 at the sides: 54 rows and 9
/// columns to an upright page.
Sheet SheetOf(int rows, int columns) {
    Sheet sheet;
    sheet.cells[{rows, columns}].text = "end";
    return sheet;
}

void Set(Sheet& sheet, const QString& name, const QString& value) {
    PageSetup& page = sheet.page;
    if (name == "titles") {
        page.titleFirstRow = value.section('-', 0, 0).toInt();
        page.titleLastRow = value.section('-', 1).toInt();
    }
    if (name == "break") page.rowBreaks = {value.toInt()};
    if (name == "fit") page.fitToPage = true;
    if (name == "fitHeight") page.fitHeight = value.toInt();
    if (name == "hidden") sheet.rowHeights[value.toInt()] = 0;
    if (name == "tall") sheet.rowHeights[value.toInt()] = 2000;
    if (name == "area") page.printArea = ParseRange(value);
    if (name == "scale") page.scalePercent = value.toInt();
    if (name == "merge") sheet.merges = {ParseRange(value)};
}

std::string Blocks(const Sheet& sheet) {
    std::string text;
    for (const SheetPage& page : LayOutSheet(sheet)) {
        if (!text.empty()) text += ' ';
        text += std::to_string(page.firstRow) + '-' + std::to_string(page.lastRow);
        if (page.firstColumn != 1 || page.lastColumn != 1)
            text += '/' + std::to_string(page.firstColumn) + '-' + std::to_string(page.lastColumn);
    }
    return text;
}

TEST(SheetLayoutTest, Breaks) {
    EXPECT_EQ(Blocks(Sheet()), "1-1");
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/breaks.txt")) {
        Sheet sheet = SheetOf(cells[0].toInt(), cells[1].toInt());
        for (const QString& setting : cells[2].split(' ', Qt::SkipEmptyParts))
            Set(sheet, setting.section('=', 0, 0), setting.section('=', 1));
        EXPECT_EQ(Blocks(sheet), cells[3].toStdString()) << line;
    }
}

TEST(SheetLayoutTest, FittingScalesByWholePercent) {
    struct Case {
        int rows, columns, fitWidth, fitHeight;
        double scale;
        size_t pages;
    };
    // The room is 494.476 by 733.89 points.
    const Case cases[] = {
        {10, 5, 1, 1, 1.00, 1},    // never larger than life
        {10, 12, 1, 1, 0.76, 1},   // 494.476 / 648 = 76.3 %
        {100, 1, 1, 2, 1.00, 2},   //
        {500, 12, 1, 0, 0.76, 8},  // 71 rows a page
        {2, 400, 1, 1, 0.10, 5},   // no smaller than a tenth
    };
    for (const Case& c : cases) {
        Sheet sheet = SheetOf(c.rows, c.columns);
        sheet.page.fitToPage = true;
        sheet.page.fitWidth = c.fitWidth;
        sheet.page.fitHeight = c.fitHeight;
        const auto pages = LayOutSheet(sheet);
        EXPECT_DOUBLE_EQ(pages.front().scale, c.scale) << c.rows << "x" << c.columns;
        EXPECT_EQ(pages.size(), c.pages) << c.rows << "x" << c.columns;
    }
}

TEST(SheetLayoutTest, Centring) {
    Sheet sheet = SheetOf(10, 2);
    sheet.page.centerHorizontally = sheet.page.centerVertically = true;
    sheet.page.left = 100;
    const SheetPage page = LayOutSheet(sheet).front();
    EXPECT_NEAR(page.originX, 100 + (A4Width - 100 - 50.4 - 108) / 2, 0.01);
    EXPECT_NEAR(page.originY, 54 + (A4Height - 108 - 135) / 2, 0.01);
}

}  // namespace
}  // namespace akarix
