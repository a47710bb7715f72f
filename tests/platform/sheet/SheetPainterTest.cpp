#include "platform/sheet/SheetPainter.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <numeric>

#include "platform/print/PdfText.h"
#include "platform/print/PreviewPages.h"
#include "platform/sheet/TextLines.h"

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
    /// At two pixels to the point.
    QImage picture() const {
        QProcess::execute("pdftoppm", {"-r", "144", "-png", "-singlefile", path_, path_.chopped(4)});
        return QImage(path_.chopped(3) + "png");
    }

    QString text;

 private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath("page.pdf");
};

void Put(Sheet& sheet, CellAddress at, const QString& text,
         const std::function<void(CellStyle&)>& set = nullptr) {
    CellStyle style;
    if (set) set(style);
    sheet.styles.push_back(style);
    sheet.cells[at] = {text, std::nullopt, static_cast<int>(sheet.styles.size()) - 1};
}

void Put(Sheet& sheet, CellAddress at, double number, const std::function<void(CellStyle&)>& set) {
    Put(sheet, at, QString(), set);
    sheet.cells[at].number = number;
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
    Put(sheet, {7, 1}, "合計", [](CellStyle& s) { s.horizontal = HorizontalAlign::Distributed; });
    Put(sheet, {8, 1}, "上下", [](CellStyle& s) { s.rotation = 255, s.vertical = VerticalAlign::Top; });
    sheet.rowHeights[8] = 100;
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
    EXPECT_NEAR(page.box("合").left(), Left(1), 3);
    EXPECT_NEAR(page.box("計").right(), Left(2), 3);
    EXPECT_NEAR(page.box("上").left(), page.box("下").left(), 0.5);
    EXPECT_NEAR(page.box("下").top() - page.box("上").top(), 11, 0.5);
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

/// How many pixels of a picture a piece of paper blackens, in points from the sheet's own corner.
double Ink(const QImage& picture, const QRectF& where) {
    const QRect pixels = QRectF((where.topLeft() + QPointF(50.4, 54)) * 2, where.size() * 2).toRect();
    double sum = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            sum += 1 - picture.pixelColor(x, y).lightnessF();
    return sum;
}

TEST(SheetPainterTest, ThePreviewShowsLettersAsBoldAsThePaper) {
    Sheet sheet;
    for (int look = 0; look < 16; ++look) {
        Put(sheet, {look + 1, 1}, "請求書 12,345 円也", [look](CellStyle& s) {
            s.font.bold = look & 1, s.font.italic = look & 2, s.font.underline = look & 4;
            s.font.strikeout = look & 8;
        });
    }
    const QImage paper = PaintedPage(sheet).picture();
    constexpr int gap = 12, percentOfTwoPixels = 150;
    PrintPage page;
    page.draw = [&](QPainter& painter) { PaintSheet(painter, sheet, LayOutSheet(sheet)[0], 1, 1); };
    PreviewPages preview({page});
    preview.setZoom(percentOfTwoPixels);
    preview.resize(preview.documentSize() + QSize(20, 4));
    preview.show();
    const QImage shown = preview.viewport()->grab().toImage().copy(QRect(QPoint(gap, gap), paper.size()));
    double plain = 0;
    for (int look = 0; look < 16; ++look) {
        const QRectF line(0, 13.5 * look, 130, 13);
        const double onPaper = Ink(paper, line);
        EXPECT_NEAR(Ink(shown, line), onPaper, onPaper * 0.1) << look;
        EXPECT_TRUE(look % 2 == 0 || Ink(shown, line) > plain * 1.15) << look;
        plain = Ink(shown, line);
    }
}

TEST(SheetPainterTest, PartsOfATextKeepTheirFonts) {
    Sheet sheet;
    Put(sheet, {1, 1}, "base 3 up2 big", [](CellStyle& s) { s.wrap = true, s.font.name = "ＭＳ ゴシック"; });
    sheet.rowHeights[1] = 60;
    SheetFont raised, big;
    raised.raised = 1;
    big.size = 22;
    sheet.cells[{1, 1}].runs = {{5, {}}, {2, raised}, {4, {}}, {3, big}};
    sheet.columnWidths[1] = 60;
    const PaintedPage page(sheet);
    const QRectF base = page.box("base"), up = page.box("3"), down = page.box("up2");
    EXPECT_NEAR(up.height(), base.height() * 0.65, 1);
    EXPECT_LT(up.center().y(), base.center().y() - 1);
    EXPECT_NEAR(down.height(), base.height(), 1);
    EXPECT_NEAR(page.box("big").height(), base.height() * 2, 1);
    EXPECT_GT(page.box("big").top(), base.bottom()) << "too wide for the first line";
}

TEST(SheetPainterTest, HeadersShrinkWithTheSheet) {
    Sheet sheet;
    sheet.page.headerText = "&L見出し";
    const double whole = PaintedPage(sheet).box("見出し").width();
    sheet.page.scalePercent = 50;
    const QRectF half = PaintedPage(sheet).box("見出し");
    EXPECT_NEAR(half.width(), whole / 2, 0.5);
    EXPECT_NEAR(half.left(), sheet.page.left, 1);
    sheet.page.headersScale = false;
    EXPECT_NEAR(PaintedPage(sheet).box("見出し").width(), whole, 0.1);
}

TEST(SheetPainterTest, WrappingKeepsMarksFromTheLinesHead) {
    const auto lines = [](const QString& text) {
        return TextLines(text, 8, [](qsizetype, const QString& part) {
            return std::accumulate(part.begin(), part.end(), 0.0,
                                   [](double sum, QChar c) { return sum + (c.unicode() < 0x80 ? 1 : 2); });
        });
    };
    EXPECT_EQ(lines("一二三四。五"), QStringList({"一二三", "四。五"}));
    EXPECT_EQ(lines("ab cd efgh"), QStringList({"ab cd ", "efgh"}));
    EXPECT_EQ(lines("一\n\n二"), QStringList({"一", "", "二"}));
    EXPECT_EQ(lines("abcdefghijkl"), QStringList({"abcdefgh", "ijkl"}));
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
    const QImage& image() const { return image_; }
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
    for (int column = 1; column <= 2; ++column)
        Put(sheet, {3, column}, "", [&](CellStyle& s) { s.left = s.right = thickRed, s.fill = Qt::green; });
    sheet.merges = {{{3, 1}, {3, 2}}};
    const Picture picture(sheet);

    EXPECT_EQ(picture.at(54, 6), QColor(Qt::red));
    EXPECT_EQ(picture.at(27, 13.5), QColor(Qt::red));
    EXPECT_EQ(picture.at(54, 34), QColor(Qt::green));
    EXPECT_EQ(picture.at(108, 34), QColor(Qt::red));
    EXPECT_EQ(picture.at(54, 20), QColor(Qt::white));
}

TEST(SheetPainterTest, BrokenAndSlantedLines) {
    const auto inkOf = [](BorderStyle style) {
        Sheet sheet;
        Put(sheet, {1, 1}, "", [&](CellStyle& cell) { cell.bottom = {style, Qt::black}; });
        sheet.columnWidths[1] = 400;
        return Ink(Picture(sheet).image(), {0, 11.5, 400, 4});
    };
    const double whole = inkOf(BorderStyle::Medium);
    EXPECT_NEAR(inkOf(BorderStyle::MediumDashDotDot), whole * 11 / 17, whole * 0.05);
    Sheet sheet;
    const Border red{BorderStyle::Medium, Qt::red}, blue{BorderStyle::Medium, Qt::blue};
    Put(sheet, {1, 1}, "", [&](CellStyle& s) { s.falling = red, s.rising = blue; });
    sheet.merges = {{{1, 1}, {2, 2}}};
    const Picture picture(sheet);
    EXPECT_EQ(picture.at(27, 6.75), QColor(Qt::red));
    EXPECT_EQ(picture.at(81, 20.25), QColor(Qt::red));
    EXPECT_EQ(picture.at(81, 6.75), QColor(Qt::blue));
    EXPECT_EQ(picture.at(54, 3), QColor(Qt::white));
}

TEST(SheetPainterTest, TextIsCutWhereANeighbourHoldsAValue) {
    const auto inkRightOf = [](bool neighbour) {
        Sheet sheet;
        Put(sheet, {1, 1}, "■■■■■■■■");
        if (neighbour) Put(sheet, {1, 2}, " ");
        Put(sheet, {2, 3}, "x");
        const Picture picture(sheet);
        for (double x = 57; x < 80; x += 0.5)
            if (picture.at(x, 7) != QColor(Qt::white)) return true;
        return false;
    };
    EXPECT_TRUE(inkRightOf(false));
    EXPECT_FALSE(inkRightOf(true));
}

}  // namespace
}  // namespace akarix
