#include "platform/sheet/SheetPainter.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "platform/print/PdfText.h"
#include "platform/sheet/TextPainter.h"

namespace akarix {
namespace {

/// Texts of a page with their boxes in points from the paper's corner.
class PaintedPage {
 public:
    explicit PaintedPage(const Sheet& sheet, size_t number = 0) {
        const auto pages = LayOutSheet(sheet);
        {
            QPdfWriter writer(path_);
            writer.setPageSize(QPageSize(QPageSize::A4));
            writer.setPageMargins(QMarginsF());
            writer.setResolution(1440);
            QPainter painter(&writer);
            PaintSheet(painter, sheet, pages[number], static_cast<int>(number) + 1,
                       static_cast<int>(pages.size()));
        }
        text = PdfPages(path_).value(0);
    }

    QRectF box(const QString& word) const { return PdfBox(path_, word); }

    QString text;

 private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath("page.pdf");
};

int Style(Sheet& sheet, const std::function<void(CellStyle&)>& set) {
    CellStyle style;
    set(style);
    sheet.styles.push_back(style);
    return static_cast<int>(sheet.styles.size()) - 1;
}

void Put(
    Sheet& sheet, CellAddress at, const QString& text,
    const std::function<void(CellStyle&)>& set = [](CellStyle&) {}) {
    sheet.cells[at] = {text, std::nullopt, Style(sheet, set)};
}

void Put(
    Sheet& sheet, CellAddress at, double number,
    const std::function<void(CellStyle&)>& set = [](CellStyle&) {}) {
    sheet.cells[at] = {QString(), number, Style(sheet, set)};
}

// Column c of width 54 begins at 50.4 + 54 * (c - 1), row r of height 13.5 at 54 + 13.5 * (r - 1).
double Left(int column) {
    return 50.4 + 54 * (column - 1);
}

TEST(SheetPainterTest, TextsStandInTheirCells) {
    Sheet sheet;
    Put(sheet, {1, 1}, "code");
    Put(sheet, {1, 2}, 1234567, [](CellStyle& s) { s.numberFormat = "#,##0", s.font.size = 8; });
    Put(sheet, {2, 2}, "mid", [](CellStyle& s) { s.horizontal = HorizontalAlign::Center; });
    Put(sheet, {2, 3}, "in", [](CellStyle& s) { s.indent = 2, s.horizontal = HorizontalAlign::Left; });
    Put(sheet, {4, 1}, "over", [](CellStyle& s) { s.horizontal = HorizontalAlign::Center; });
    sheet.merges = {{{4, 1}, {5, 4}}};
    const PaintedPage page(sheet);

    EXPECT_NEAR(page.box("code").left(), Left(1), 3);
    EXPECT_NEAR(page.box("code").bottom(), 54 + 13.5, 3);
    EXPECT_NEAR(page.box("1,234,567").right(), Left(3), 3);
    EXPECT_NEAR(page.box("mid").center().x(), (Left(2) + Left(3)) / 2, 0.5);
    EXPECT_NEAR(page.box("in").left(), Left(3) + 19.8, 1);
    EXPECT_NEAR(page.box("over").center().x(), (Left(1) + Left(5)) / 2, 0.5);
    EXPECT_NEAR(page.box("over").bottom(), 54 + 5 * 13.5, 3);
}

TEST(SheetPainterTest, WhatIsTooWide) {
    Sheet sheet;
    Put(sheet, {1, 1}, 123456789012.0, [](CellStyle& s) { s.numberFormat = "0"; });
    Put(sheet, {2, 1}, "shrunktofitthecell", [](CellStyle& s) { s.shrink = true; });
    Put(sheet, {3, 1}, "一二三四五六七八九十",
        [](CellStyle& s) { s.wrap = true, s.font.name = "ＭＳ ゴシック"; });
    sheet.rowHeights[3] = 40;
    Put(sheet, {4, 1}, 12345678.0, [](CellStyle& s) { s.numberFormat = "0"; });
    const PaintedPage page(sheet);

    EXPECT_TRUE(page.text.contains("####")) << page.text.toStdString();
    EXPECT_FALSE(page.text.contains("123456789012"));
    EXPECT_LE(page.box("shrunktofitthecell").width(), 54);
    EXPECT_EQ(page.box("一二三四").left(), page.box("五六七八").left());
    EXPECT_LT(page.box("五六七八").top(), page.box("九十").top());
    // Only the substitute font's figures are too wide here: they are narrowed, not hidden.
    EXPECT_LE(page.box("12345678").width(), 54);
}

TEST(SheetPainterTest, DistributedTextReachesBothEdges) {
    Sheet sheet;
    Put(sheet, {1, 1}, "合計", [](CellStyle& s) { s.horizontal = HorizontalAlign::Distributed; });
    sheet.columnWidths[1] = 200;
    const PaintedPage page(sheet);
    EXPECT_NEAR(page.box("合").left(), 50.4, 3);
    EXPECT_NEAR(page.box("計").right(), 250.4, 3);
}

TEST(SheetPainterTest, UprightTextRunsDown) {
    Sheet sheet;
    Put(sheet, {1, 1}, "上下", [](CellStyle& s) { s.rotation = 255, s.vertical = VerticalAlign::Top; });
    sheet.rowHeights[1] = 100;
    const PaintedPage page(sheet);
    EXPECT_NEAR(page.box("上").left(), page.box("下").left(), 0.5);
    EXPECT_NEAR(page.box("下").top() - page.box("上").top(), 11, 0.5);
}

TEST(SheetPainterTest, RepeatedTitlesAndPageNumbers) {
    Sheet sheet;
    Put(sheet, {1, 1}, "cover");
    Put(sheet, {2, 1}, "head");
    Put(sheet, {80, 1}, "last");
    sheet.page.titleFirstRow = sheet.page.titleLastRow = 2;
    sheet.page.footerText = "&L&\"ＭＳ 明朝,太字\"&9A&&B&C&P／&N&Rright";
    const PaintedPage second(sheet, 1);
    EXPECT_FALSE(second.text.contains("cover"));
    EXPECT_NEAR(second.box("head").bottom(), 54 + 13.5, 3);
    EXPECT_TRUE(second.text.contains("A&B")) << second.text.toStdString();
    EXPECT_TRUE(second.text.contains("2／2")) << second.text.toStdString();
    EXPECT_NEAR(second.box("right").right(), 595.276 - 50.4, 1);
}

TEST(SheetPainterTest, WrappingKeepsMarksFromTheLinesHead) {
    SheetFont font;
    font.name = "ＭＳ ゴシック";
    font.size = 10;
    const double four = 4 * 200 + 1;
    EXPECT_EQ(WrapText("一二三四。五", font, four), QStringList({"一二三", "四。五"}));
    EXPECT_EQ(WrapText("ab cd efgh", font, four), QStringList({"ab cd ", "efgh"}));
    EXPECT_EQ(WrapText("一\n\n二", font, four), QStringList({"一", "", "二"}));
    EXPECT_EQ(WrapText("abcdefghijkl", font, four), QStringList({"abcdefgh", "ijkl"}));
}

/// Colours of a page at two pixels to the point, counted from the sheet's own corner.
class Picture {
 public:
    explicit Picture(const Sheet& sheet) : image_(1200, 1700, QImage::Format_RGB32) {
        image_.fill(Qt::white);
        QPainter painter(&image_);
        painter.scale(0.1, 0.1);
        PaintSheet(painter, sheet, LayOutSheet(sheet).front(), 1, 1);
    }
    QColor at(double x, double y) const {
        return image_.pixelColor(static_cast<int>((x + 50.4) * 2), static_cast<int>((y + 54) * 2));
    }

 private:
    QImage image_;
};

TEST(SheetPainterTest, TheStrongerOfTwoLinesIsDrawnAndNoneInsideAMerge) {
    Sheet sheet;
    const Border thickRed{BorderStyle::Thick, Qt::red};
    const Border thinBlue{BorderStyle::Thin, Qt::blue};
    Put(sheet, {1, 1}, "", [&](CellStyle& s) { s.right = thinBlue, s.bottom = thickRed; });
    Put(sheet, {1, 2}, "", [&](CellStyle& s) { s.left = thickRed; });
    for (int column = 1; column <= 2; ++column) {
        Put(sheet, {3, column}, "",
            [&](CellStyle& s) { s.left = s.right = s.top = s.bottom = thickRed, s.fill = Qt::green; });
    }
    sheet.merges = {{{3, 1}, {3, 2}}};
    const Picture picture(sheet);

    EXPECT_EQ(picture.at(54, 6), QColor(Qt::red));
    EXPECT_EQ(picture.at(27, 13.5), QColor(Qt::red));
    EXPECT_EQ(picture.at(54, 34), QColor(Qt::green));
    EXPECT_EQ(picture.at(108, 34), QColor(Qt::red));
    EXPECT_EQ(picture.at(54, 20), QColor(Qt::white));
}

TEST(SheetPainterTest, TextIsCutWhereANeighbourHoldsAValue) {
    const auto inkRightOf = [](bool neighbour) {
        Sheet sheet;
        Put(sheet, {1, 1}, "■■■■■■■■");
        if (neighbour) Put(sheet, {1, 2}, " ");
        Put(sheet, {2, 3}, "x");
        const Picture picture(sheet);
        for (double x = 57; x < 80; x += 0.5) {
            if (picture.at(x, 7) != QColor(Qt::white)) return true;
        }
        return false;
    };
    EXPECT_TRUE(inkRightOf(false));
    EXPECT_FALSE(inkRightOf(true));
}

}  // namespace
}  // namespace akarix
