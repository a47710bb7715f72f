#include "platform/sheet/SheetReader.h"

#include <gtest/gtest.h>
#include <xlsxwriter.h>
#include <zip.h>

#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "platform/sheet/WorkbookWriter.h"
#include "support/Raised.h"

namespace akarix {
namespace {

constexpr size_t kStrings = 3;  // the shared strings among the parts

using Parts = std::vector<std::pair<std::string, std::string>>;

class SheetReader : public testing::Test {
 protected:
    QString path() const { return folder_.filePath("帳票.xlsx"); }
    Sheet read(const char* name = "Sheet1") const { return ReadSheet(path(), QString::fromUtf8(name)); }
    QString failure(const char* name = "Sheet1") const {
        QString text;
        return Raised([&] { read(name); }, &text) == 1004 ? text : "nothing raised";
    }

    void put(const QByteArray& bytes) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// Whatever the file is, it is read or refused.
    void survive() const {
        const int error = Raised([this] { read(); });
        EXPECT_TRUE(error == 0 || error == 1004) << error;
    }
    QByteArray bytes() const {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void zip(const Parts& parts) const {
        QFile::remove(path());
        zip_t* archive = zip_open(path().toUtf8().constData(), ZIP_CREATE, nullptr);
        ASSERT_NE(archive, nullptr);
        for (const auto& [name, text] : parts) {
            zip_file_add(archive, name.c_str(), zip_source_buffer(archive, text.data(), text.size(), 0),
                         ZIP_FL_ENC_UTF_8);
        }
        ASSERT_EQ(zip_close(archive), 0);
    }

    /// A workbook with one sheet, hand-made: what other programs write and the library of the exports does
    /// not.
    static Parts handMade(const std::string& sheet, const std::string& strings = {},
                          const std::string& names = {},
                          const std::string& target = "worksheets/sheet1.xml") {
        Parts parts;
        for (const char* name :
             {"_rels/.rels", "xl/workbook.xml", "xl/_rels/workbook.xml.rels", "xl/sharedStrings.xml",
              "xl/worksheets/sheet1.xml", "xl/styles.xml", "xl/theme/theme1.xml"}) {
            QFile file(QString(AKARIX_TEST_DATA "/book/") + name);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
            const std::pair<const char*, const std::string&> blanks[] = {
                {"$SHEET", sheet}, {"$STRINGS", strings}, {"$NAMES", names}, {"$TARGET", target}};
            QByteArray text = file.readAll();
            for (const auto& [mark, value] : blanks)
                text.replace(mark, QByteArray::fromStdString(value));
            parts.emplace_back(name, text.toStdString());
        }
        return parts;
    }

    QTemporaryDir folder_;
};

TEST_F(SheetReader, StylesMergesAndPage) {
    {
        WorkbookWriter writer(path());
        lxw_worksheet* sheet = workbook_add_worksheet(writer.book(), "Sheet1");
        lxw_format* format = writer.newFormat();
        format_set_font_name(format, "ＭＳ 明朝");
        format_set_font_size(format, 18);
        format_set_bold(format);
        format_set_underline(format, LXW_UNDERLINE_SINGLE);
        format_set_font_color(format, 0x123456);
        format_set_bg_color(format, 0xFFEEDD);
        format_set_bottom(format, LXW_BORDER_DOUBLE);
        format_set_align(format, LXW_ALIGN_DISTRIBUTED);
        format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
        format_set_rotation(format, 270);
        format_set_num_format(format, "[$-411]ggge\"年\"");
        worksheet_merge_range(sheet, 1, 1, 2, 3, "請求書", format);
        lxw_format* builtIn = writer.newFormat();
        format_set_num_format_index(builtIn, 38);
        format_set_shrink(builtIn);
        format_set_indent(builtIn, 2);
        format_set_diag_type(builtIn, LXW_DIAGONAL_BORDER_UP);
        format_set_diag_border(builtIn, LXW_BORDER_MEDIUM_DASHED);
        worksheet_write_number(sheet, 4, 0, -1234, builtIn);
        worksheet_write_formula_num(sheet, 5, 0, "=A5*2", nullptr, -2468);
        worksheet_write_boolean(sheet, 6, 0, 1, nullptr);
        lxw_format* unknown = writer.newFormat();
        format_set_num_format(unknown, "0.0E+0");
        worksheet_write_number(sheet, 7, 0, 25000, unknown);
        worksheet_set_row(sheet, 9, 30, nullptr);
        lxw_row_col_options hidden{};
        hidden.hidden = 1;
        worksheet_set_row_opt(sheet, 10, 15, nullptr, &hidden);
        WorkbookWriter::setColumnWidth(sheet, 0, 1, 120);
        worksheet_set_column_opt(sheet, 5, 5, 8, nullptr, &hidden);
        worksheet_set_paper(sheet, 13);
        worksheet_set_landscape(sheet);
        worksheet_set_margins(sheet, 0.5, 0.25, 1, 0.75);
        worksheet_fit_to_pages(sheet, 1, 0);
        worksheet_center_horizontally(sheet);
        lxw_row_t breaks[] = {40, 20, 0};
        worksheet_set_h_pagebreaks(sheet, breaks);
        worksheet_set_column(sheet, 7, 7, 0, nullptr);
        ASSERT_TRUE(writer.save());
    }
    const Sheet sheet = read("sheet1");
    EXPECT_EQ(sheet.merges, (std::vector<CellRange>{{{2, 2}, {3, 4}}}));
    EXPECT_EQ(sheet.shownText({2, 2}), "請求書");
    const CellStyle& style = sheet.styleAt({2, 2});
    EXPECT_EQ(style.font.name, "ＭＳ 明朝");
    EXPECT_TRUE(style.font.size == 18 && style.font.bold && style.font.underline && !style.font.italic &&
                !style.wrap && !style.shrink);
    EXPECT_EQ(style.font.color, QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(style.fill, QColor(0xFF, 0xEE, 0xDD));
    EXPECT_EQ(style.bottom.style, BorderStyle::Double);
    EXPECT_EQ(style.horizontal, HorizontalAlign::Distributed);
    EXPECT_EQ(style.vertical, VerticalAlign::Center);
    EXPECT_EQ(style.rotation, 255);
    EXPECT_EQ(style.numberFormat, "[$-411]ggge\"年\"");

    EXPECT_EQ(sheet.shownText({5, 1}), "-1,234");
    EXPECT_TRUE(sheet.styleAt({5, 1}).shrink && sheet.styleAt({5, 1}).indent == 2);
    EXPECT_EQ(sheet.styleAt({5, 1}).rising.style, BorderStyle::MediumDashed);
    EXPECT_EQ(sheet.styleAt({5, 1}).falling.style, BorderStyle::None);
    EXPECT_EQ(sheet.shownText({6, 1}), "-2468");
    EXPECT_EQ(sheet.shownText({7, 1}), "TRUE");
    EXPECT_EQ(sheet.rowHeight(10), 30);
    EXPECT_TRUE(sheet.rowHidden(11));
    EXPECT_EQ(sheet.columnWidth(1), 90);
    EXPECT_EQ(sheet.columnWidth(6), 0);
    EXPECT_EQ(sheet.columnWidth(20), 54);

    const PageSetup& page = sheet.page;
    EXPECT_NEAR(page.paperWidth, 728.5, 0.1);
    EXPECT_NEAR(page.paperHeight, 515.9, 0.1);
    EXPECT_TRUE(page.landscape && page.fitToPage && page.centerHorizontally && !page.centerVertically);
    EXPECT_EQ(page.fitHeight, 0);
    EXPECT_EQ(page.left, 36);
    EXPECT_EQ(page.bottom, 54);
    EXPECT_EQ(page.rowBreaks, (std::vector<int>{20, 40}));
    EXPECT_EQ(sheet.shownText({8, 1}), "25000");
    ASSERT_EQ(sheet.warnings.size(), 3);
    EXPECT_TRUE(sheet.warnings[0].startsWith("幅 0 の列"));
    EXPECT_TRUE(sheet.warnings[1].startsWith("数式"));
    EXPECT_TRUE(sheet.warnings[2].startsWith("表示形式 0.0E+0"));
}

TEST_F(SheetReader, StringsOfEveryKind) {
    zip(
        handMade("<sheetData><row><c t='s'><v>0</v></c><c t='s'><v>1</v></c><c t='s'><v>9</v></c></row>"
                 "<row r='3'><c r='B3' t='inlineStr'><is><r><t>前</t></r><r><t xml:space='preserve"
                 "'> 後</t></r></is></c><c t='str'><v>式</v></c><c t='e'><v>#N/A</v></c><c><v> 7 "
                 "</v></c></row></sheetData>",
                 "<si><t>地区</t><rPh sb='0' eb='2'><t>チク</t></rPh><phoneticPr fontId='1'/></si>"
                 "<si><r><t>一_x000A_</t></r><r><rPr><b/><sz val='7'/><vertAlign val='superscript'/></rPr><t "
                 "xml:space='preserve'> "
                 "</t></r><r><t>二_x_</t></r></si>"));
    const Sheet sheet = read();
    struct {
        CellAddress at;
        const char* text;
    } const table[] = {{{1, 1}, "地区"}, {{1, 2}, "一\n 二_x_"}, {{1, 3}, ""}, {{3, 2}, "前 後"},
                       {{3, 3}, "式"},   {{3, 4}, "#N/A"},       {{3, 5}, "7"}};
    for (const auto& row : table)
        EXPECT_EQ(sheet.shownText(row.at).toStdString(), row.text);
    EXPECT_TRUE(sheet.cells.at({3, 2}).runs.empty()) << "one font, however it is cut";
    const std::vector<TextRun>& runs = sheet.cells.at({1, 2}).runs;
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0].length, 2);
    EXPECT_FALSE(runs[0].font);
    EXPECT_TRUE(runs[1].font->bold && runs[1].font->size == 7 && runs[1].font->raised == 1);
}

TEST_F(SheetReader, TargetsAndNamesAsOtherProgramsWriteThem) {
    for (const char* target :
         {"worksheets/sheet1.xml", "/xl/worksheets/sheet1.xml", "../xl/./worksheets/Sheet1.xml"}) {
        Parts parts = handMade(
            "<sheetData><row r='1'><c r='A1'><v>5</v></c></row></sheetData>", {},
            "<definedName name='_xlnm.Print_Area' localSheetId='0'>'It''s, A!1'!$A$1:$K$9</definedName>"
            "<definedName name='_xlnm.Print_Titles' localSheetId='0'>Sheet1!7:8</definedName>"
            "<definedName name='_xlnm.Print_Area' localSheetId='1'>Sheet2!$A$1</definedName>",
            target);
        parts.resize(5);  // neither styles nor a theme
        zip(parts);
        const Sheet sheet = read();
        EXPECT_EQ(sheet.shownText({1, 1}), "5") << target;
        EXPECT_EQ(sheet.page.printArea, (CellRange{{1, 1}, {9, 11}}));
        EXPECT_EQ(sheet.page.titleFirstRow, 7);
        EXPECT_EQ(sheet.page.titleLastRow, 8);
    }
}

TEST_F(SheetReader, ThemeIndexedAndTintedColors) {
    zip(handMade("<sheetData><row><c s='1'/><c s='2'/><c s='3'/><c s='9'/></row></sheetData>"));
    const Sheet sheet = read();
    EXPECT_EQ(sheet.styleAt({1, 1}).font.color, QColor(0x11, 0x22, 0x33));
    EXPECT_EQ(sheet.styleAt({1, 1}).fill.name(), "#808080");
    EXPECT_EQ(sheet.styleAt({1, 1}).numberFormat, "[$-411]ggge\"年\"m\"月\"d\"日\"");
    EXPECT_EQ(sheet.styleAt({1, 2}).fill, QColor(Qt::red));
    EXPECT_EQ(sheet.styleAt({1, 2}).rotation, -45);
    EXPECT_EQ(sheet.styleAt({1, 3}).fill.name(), "#808080");
    EXPECT_FALSE(sheet.styleAt({1, 4}).fill.isValid());
}

TEST_F(SheetReader, NoWorkbook) {
    QFile::remove(path());
    EXPECT_TRUE(failure().contains("見つからない"));
    for (const QByteArray& junk :
         {QByteArray(), QByteArray("PK\3\4"), QByteArray("\xD0\xCF\x11\xE0 old"), QByteArray(70000, 'x')}) {
        put(junk);
        EXPECT_TRUE(failure().contains("形式")) << junk.left(10).toStdString();
    }
    zip({{"readme.txt", "a zip, but no workbook"}});
    EXPECT_TRUE(failure().contains("形式"));
    zip(handMade(""));
    EXPECT_TRUE(failure("Sheet2").contains("シート 'Sheet2' がありません"));
    zip(handMade("", {}, {}, "worksheets/gone.xml"));
    EXPECT_TRUE(failure().contains("シート 'Sheet1' がありません"));
}

TEST_F(SheetReader, HostileParts) {
    const char* refused[] = {
        "<sheetData><row r='99999999'/></sheetData>",       "<sheetData><row r='-1'/></sheetData>",
        "<sheetData><row><c r='ZZZZ1'/></row></sheetData>", "<sheetData><row><c r=''/></row></sheetData>",
        "<mergeCells><mergeCell ref='A1:B'/></mergeCells>", "<sheetData><row>"};
    for (const char* part : refused) {
        zip(handMade(part));
        EXPECT_NE(failure(), "nothing raised") << part;
    }
    zip(handMade(
        "<cols><col min='-5' max='2000000000' width='1e99' style='-3'/><col min='1' max='99999' "
        "width='3'/></cols>"
        "<sheetData><row r='1' ht='nan'><c s='4000000000'><v>1e999</v></c><c "
        "t='s'><v>-1</v></c></row></sheetData>"
        "<pageMargins left='1e9' right='-3' top='nan' bottom='x'/><pageSetup paperSize='77' scale='0' "
        "fitToWidth='-9' paperWidth='1e30mm' paperHeight='mm'/><rowBreaks><brk id='-4'/></rowBreaks>",
        "<si><t>_x</t></si><si>_xZZZZ_</si>",
        "<definedName name='_xlnm.Print_Area' localSheetId='0'>#REF!</definedName>"));
    const Sheet sheet = read();
    EXPECT_GT(sheet.page.paperWidth, sheet.page.left + sheet.page.right);
    EXPECT_GE(sheet.page.scalePercent, 10);
    EXPECT_FALSE(sheet.page.printArea);
    EXPECT_LT(sheet.columnWidth(1), 3000);

    std::string bomb = "<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'>";
    for (char c = 'b'; c < 'z'; ++c) {
        bomb += std::string("<!ENTITY ") + c + " '";
        for (int i = 0; i < 10; ++i)
            bomb += std::string("&") + static_cast<char>(c - 1) + ";";
        bomb += "'>";
    }
    Parts parts = handMade("<sheetData/>");
    parts[kStrings].second = bomb + "]><sst><si><t>&y;</t></si></sst>";
    zip(parts);
    read();
    parts[kStrings].second = std::string(200'000'000, ' ');
    zip(parts);
    EXPECT_TRUE(failure().contains("大きすぎます"));
    std::string deep;
    for (int i = 0; i < 300'000; ++i)
        deep += "<a>";
    parts[kStrings].second = deep;
    zip(parts);
    failure();
}

// A file that went wrong on its way is refused or read, but never takes the program down.
TEST_F(SheetReader, DamagedFiles) {
    ASSERT_TRUE(QFile::copy(AKARIX_SOURCE_DIR "/Prt/請求一覧表.xlsx", path()));
    const QByteArray whole = bytes();
    std::mt19937 random(20110325);
    const auto below = [&random](qsizetype bound) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(bound));
    };
    for (int round = 0; round < 400; ++round) {
        QByteArray damaged = whole;
        if (round % 4 == 0) damaged.truncate(below(whole.size()));
        for (int i = 0; i < 1 + round % 8 && !damaged.isEmpty(); ++i)
            damaged[below(damaged.size())] = static_cast<char>(random());
        QFile::remove(path());
        put(damaged);
        survive();
    }
    // The same for the text inside, where no checksum stands guard.
    Parts parts = handMade(
        "<cols><col min='1' max='3' width='9.5'/></cols><sheetData><row r='2' ht='20'><c r='B2' s='0' t='s'>"
        "<v>0</v></c></row></sheetData><mergeCells><mergeCell ref='B2:C3'/></mergeCells>",
        "<si><t>地区</t></si>");
    for (int round = 0; round < 400; ++round) {
        Parts damaged = parts;
        std::string& text = damaged[static_cast<size_t>(below(static_cast<qsizetype>(parts.size())))].second;
        const auto at = static_cast<size_t>(below(static_cast<qsizetype>(text.size())));
        if (round % 2)
            text[at] = static_cast<char>(random());
        else
            text.erase(at, 1 + random() % 5);
        zip(damaged);
        survive();
    }
}

}  // namespace
}  // namespace akarix
