#include <gmock/gmock.h>

#include "platform/sheet/SheetPainter.h"

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

std::string Blocks(const Sheet& sheet) {
    std::string text;
    for (const SheetPage& page : LayOutSheet(sheet)) {
        if (!text.empty()) text += ' ';
        text += std::to_string(page.firstRow) + '-' + std::to_string(page.lastRow);
        if (page.firstColumn != 1 || page.lastColumn != 1) {
            text += '/' + std::to_string(page.firstColumn) + '-' + std::to_string(page.lastColumn);
        }
    }
    return text;
}

TEST(SheetLayoutTest, Breaks) {
    struct Case {
        const char* name;
        int rows, columns;
        std::function<void(Sheet&)> set;
        const char* blocks;
    };
    const Case cases[] = {
        {"empty sheet", 1, 1, [](Sheet& s) { s.cells.clear(); }, "1-1"},
        {"exactly one page", 54, 1, [](Sheet&) {}, "1-54"},
        {"one row more", 55, 1, [](Sheet&) {}, "1-54 55-55"},
        {"title rows take room from the second page on", 157, 1,
         [](Sheet& s) { s.page.titleFirstRow = s.page.titleLastRow = 4; }, "1-54 55-107 108-157"},
        {"titles below the first break stay where they are", 120, 1,
         [](Sheet& s) { s.page.titleFirstRow = 60, s.page.titleLastRow = 61; }, "1-54 55-108 109-120"},
        {"a break behind a row", 60, 1, [](Sheet& s) { s.page.rowBreaks = {10}; }, "1-10 11-60"},
        {"fitting has no use for breaks", 60, 1,
         [](Sheet& s) { s.page.rowBreaks = {10}, s.page.fitToPage = true; }, "1-60"},
        {"fit to the width alone", 60, 1, [](Sheet& s) { s.page.fitToPage = true, s.page.fitHeight = 0; },
         "1-54 55-60"},
        {"hidden rows need no room", 60, 1,
         [](Sheet& s) {
             for (int row = 1; row <= 6; ++row) {
                 s.rowHeights[row] = 0;
             }
         },
         "1-60"},
        {"a row taller than the paper", 3, 1, [](Sheet& s) { s.rowHeights[2] = 2000; }, "1-1 2-2 3-3"},
        {"the print area alone", 100, 9,
         [](Sheet& s) {
             s.page.printArea = CellRange{{3, 2}, {20, 5}};
         },
         "3-20/2-5"},
        {"an area of whole columns ends with the sheet", 20, 3,
         [](Sheet& s) {
             s.page.printArea = CellRange{{1, 1}, {1048576, 2}};
         },
         "1-20/1-2"},
        {"down before across", 60, 10, [](Sheet&) {}, "1-54/1-9 55-60/1-9 1-54/10-10 55-60/10-10"},
        {"half the size", 108, 1, [](Sheet& s) { s.page.scalePercent = 50; }, "1-108"},
        {"merges count", 1, 1,
         [](Sheet& s) {
             s.merges = {{{1, 1}, {60, 1}}};
         },
         "1-54 55-60"},
    };
    for (const Case& c : cases) {
        Sheet sheet = SheetOf(c.rows, c.columns);
        c.set(sheet);
        EXPECT_EQ(Blocks(sheet), c.blocks) << c.name;
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
        {100, 1, 1, 1, 0.54, 1},   // 733.89 / 1350 = 54.4 %
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
