#include "platform/sheet/SheetReader.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/runtime/Literals.h"
#include "platform/sheet/ColumnWidth.h"
#include "platform/sheet/NumberFormat.h"
#include "platform/sheet/StyleReader.h"
#include "platform/sheet/WorkbookParts.h"

namespace akarix {

namespace {

constexpr double kPointsPerInch = 72, pointsPerMillimetre = 72 / 25.4;

// Characters that XML cannot hold are written _x000D_.
QString Unescaped(QString value) {
    for (qsizetype at = value.indexOf(u"_x"); at >= 0; at = value.indexOf(u"_x", at + 1)) {
        if (at + 6 >= value.size() || value[at + 6] != u'_') continue;
        bool ok = false;
        const ushort code = value.mid(at + 2, 4).toUShort(&ok, 16);
        if (ok) value.replace(at, 7, QChar(code));
    }
    return value;
}

struct Paper {
    int code;
    double width, height;  ///< millimetres
};

constexpr Paper kPapers[] = {{1, 215.9, 279.4}, {3, 279.4, 431.8}, {4, 431.8, 279.4}, {5, 215.9, 355.6},
                             {6, 139.7, 215.9}, {7, 184.2, 266.7}, {8, 297, 420},     {9, 210, 297},
                             {10, 210, 297},    {11, 148, 210},    {12, 257, 364},    {13, 182, 257},
                             {28, 162, 229},    {27, 110, 220},    {43, 100, 148},    {66, 420, 594},
                             {69, 200, 148},    {70, 105, 148},    {88, 128, 182}};

// "210mm", "8.5in"
double Measure(const QString& value) {
    const double number = value.left(value.size() - 2).toDouble();
    if (value.endsWith(u"mm")) return number * pointsPerMillimetre;
    if (value.endsWith(u"cm")) return number * pointsPerMillimetre * 10;
    if (value.endsWith(u"in")) return number * kPointsPerInch;
    return value.endsWith(u"pt") ? number : 0;
}

class Reader {
 public:
    Reader(const QString& path, const QString& name) : parts_(path), file_(QFileInfo(path).fileName()) {
        sheet_.name = name;
    }

    Sheet read() {
        openWorkbook();
        readStyles();
        pugi::xml_document document;
        if (!parts_.load(sheetPart_, document) || !IsNamed(document.document_element(), "worksheet"))
            noSheet();
        const auto root = document.document_element();
        readFormat(root);
        readColumns(ChildNamed(root, "cols"));
        readRows(ChildNamed(root, "sheetData"));
        readMerges(ChildNamed(root, "mergeCells"));
        readPage(root);
        readNames();
        warn(root);
        return std::move(sheet_);
    }

 private:
    [[noreturn]] void noSheet() const {
        throw MissingSheet(1004, u"'%1': シート '%2' がありません。"_s.arg(file_, sheet_.name));
    }

    void openWorkbook() {
        workbookPart_ = u"xl/workbook.xml"_s;
        for (const auto& relation : parts_.relations(QString()))
            if (relation.type == u"officeDocument") workbookPart_ = relation.part;
        if (!parts_.load(workbookPart_, workbook_)) parts_.fail(u"ブック (.xlsx) の形式ではありません。"_s);
        relations_ = parts_.relations(workbookPart_);

        const auto root = workbook_.document_element();
        from1904_ = IsOn(ChildNamed(root, "workbookPr").attribute("date1904"));
        int index = 0;
        for (const auto& node : ChildNamed(root, "sheets")) {
            if (AttributeText(node.attribute("name")).compare(sheet_.name, Qt::CaseInsensitive) == 0) {
                sheetIndex_ = index;
                const QString id = AttributeText(PrefixedAttribute(node, "id"));
                for (const auto& relation : relations_)
                    if (relation.id == id) sheetPart_ = relation.part;
                break;
            }
            ++index;
        }
        if (sheetPart_.isEmpty()) noSheet();
    }

    // The text of a string item: its own or that of its runs. The readings beside them (rPh) are not part of
    // it.
    Cell stringItem(const pugi::xml_node& item) const {
        Cell held;
        bool plain = true;
        for (const auto& child : item) {
            const bool run = IsNamed(child, "r");
            if (!run && !IsNamed(child, "t")) continue;
            const QString value =
                Unescaped(QString::fromUtf8((run ? ChildNamed(child, "t") : child).text().get()));
            held.text += value;
            held.runs.push_back({value.size(), {}});
            if (const auto look = ChildNamed(child, "rPr")) {
                held.runs.back().font = readFont_(look);
                plain = false;
            }
        }
        if (plain) held.runs.clear();
        return held;
    }

    // A part that the workbook names once, by its kind.
    void loadRelated(QStringView type, pugi::xml_document& document) {
        for (const auto& relation : relations_) {
            if (relation.type != type) continue;
            parts_.load(relation.part, document);
            return;
        }
    }

    void readStyles() {
        pugi::xml_document styles, theme, strings;
        loadRelated(u"styles", styles);
        loadRelated(u"theme", theme);
        loadRelated(u"sharedStrings", strings);
        WorkbookStyles read = ReadStyles(styles, theme);
        sheet_.styles = std::move(read.cells);
        normal_ = read.normal;
        readFont_ = read.readFont;
        digitPixels_ = DigitPixels(normal_);
        for (const CellStyle& style : sheet_.styles)
            isDate_.push_back(IsDateFormat(style.numberFormat));
        for (const auto& item : strings.document_element())
            if (IsNamed(item, "si")) strings_.push_back(stringItem(item));
    }

    void readFormat(const pugi::xml_node& root) {
        const auto node = ChildNamed(root, "sheetFormatPr");
        const auto width = node.attribute("defaultColWidth");
        const int base = std::clamp(node.attribute("baseColWidth").as_int(8), 0, 255);
        sheet_.defaultColumnWidth =
            width ? ColumnPoints(length(width, 255), digitPixels_) : DefaultColumnPoints(base, digitPixels_);
        if (const auto height = node.attribute("defaultRowHeight"))
            sheet_.defaultRowHeight = length(height, 409.5);
        if (IsOn(node.attribute("zeroHeight"))) sheet_.defaultRowHeight = 0;
    }

    static double length(const pugi::xml_attribute& attribute, double largest, double otherwise = 0) {
        const double value = attribute.as_double(otherwise);
        return std::isfinite(value) ? std::clamp(value, 0.0, largest) : otherwise;
    }

    void readColumns(const pugi::xml_node& cols) {
        int done = 0;
        bool thin = false;
        for (const auto& node : cols) {
            const int first = std::max(node.attribute("min").as_int(), done + 1);
            const int last = std::min(node.attribute("max").as_int(), kLastSheetColumn);
            const auto width = node.attribute("width");
            const bool hidden = IsOn(node.attribute("hidden"));
            const int style = node.attribute("style").as_int();
            for (int column = first; column <= last; ++column) {
                if (hidden) {
                    sheet_.columnWidths[column] = 0;
                } else if (width) {
                    sheet_.columnWidths[column] = ColumnPoints(length(width, 255), digitPixels_);
                    thin = thin || sheet_.columnWidths[column] <= 0;
                }
                if (style > 0) sheet_.columnStyles[column] = style;
            }
            done = std::max(done, last);
        }
        if (thin) {
            sheet_.warnings +=
                u"幅 0 の列は、ほかの表計算ソフトでは見えてしまいます。隠すには「非表示」にします。"_s;
        }
    }

    void readRows(const pugi::xml_node& data) {
        int row = 0;
        for (const auto& node : data) {
            if (!IsNamed(node, "row")) continue;
            row = node.attribute("r").as_int(row + 1);
            if (row < 1 || row > kLastSheetRow) parts_.fail(u"行の番号が正しくありません。"_s);
            const int style = node.attribute("s").as_int();
            if (style > 0 && IsOn(node.attribute("customFormat"))) sheet_.rowStyles[row] = style;
            const double tallestFont = readCells(node, row);
            if (IsOn(node.attribute("hidden"))) {
                sheet_.rowHeights[row] = 0;
            } else if (const auto height = node.attribute("ht")) {
                sheet_.rowHeights[row] = length(height, 409.5);
            } else if (tallestFont > normal_.size) {
                // A row without a height of its own grows with its letters, by steps of a pixel.
                const double grown = sheet_.defaultRowHeight * tallestFont / normal_.size;
                sheet_.rowHeights[row] = std::ceil(grown / 0.75) * 0.75;
            }
        }
    }

    double readCells(const pugi::xml_node& row, int rowNumber) {
        double tallestFont = 0;
        CellAddress at{rowNumber, 0};
        for (const auto& node : row) {
            if (!IsNamed(node, "c")) continue;
            if (const auto address = node.attribute("r"))
                at = ParseRange(AttributeText(address)).first;
            else
                ++at.column;
            if (at.column > kLastSheetColumn) parts_.fail(u"列の番号が正しくありません。"_s);
            Cell cell;
            const auto style = static_cast<size_t>(node.attribute("s").as_uint());
            if (style < sheet_.styles.size()) cell.style = static_cast<int>(style);
            const QString& format = sheet_.styles[static_cast<size_t>(cell.style)].numberFormat;
            if (!IsKnownFormat(format) && !unknownFormats_.contains(format)) unknownFormats_ += format;
            readValue(node, cell);
            if (ChildNamed(node, "f")) {
                ++formulas_;
                if (formulas_ == 1) firstFormula_ = AttributeText(node.attribute("r"));
            }
            if (!cell.text.isEmpty() || cell.number)
                tallestFont = std::max(tallestFont, sheet_.styles[static_cast<size_t>(cell.style)].font.size);
            sheet_.cells.insert_or_assign(at, std::move(cell));
        }
        return tallestFont;
    }

    void readValue(const pugi::xml_node& node, Cell& cell) const {
        const char* type = node.attribute("t").value();
        const auto is = [type](const char* name) { return std::strcmp(type, name) == 0; };
        if (is("inlineStr")) {
            const int style = cell.style;
            cell = stringItem(ChildNamed(node, "is"));
            cell.style = style;
            return;
        }
        const auto valueNode = ChildNamed(node, "v");
        if (!valueNode) return;
        const QByteArray value = valueNode.text().get();
        if (is("s")) {
            bool ok = false;
            const auto index = static_cast<size_t>(value.trimmed().toUInt(&ok));
            if (!ok || index >= strings_.size()) return;
            cell.text = strings_[index].text;
            cell.runs = strings_[index].runs;
        } else if (is("b")) {
            cell.text = value.trimmed() == "1" ? u"TRUE"_s : u"FALSE"_s;
        } else if (is("str") || is("e") || is("d")) {
            cell.text = Unescaped(QString::fromUtf8(value));
        } else {
            bool ok = false;
            double number = value.trimmed().toDouble(&ok);
            if (!ok || !std::isfinite(number)) {
                cell.text = QString::fromUtf8(value);
                return;
            }
            constexpr double daysTo1904 = 1462;
            if (from1904_ && isDate_[static_cast<size_t>(cell.style)]) number += daysTo1904;
            cell.number = number;
        }
    }

    void readMerges(const pugi::xml_node& merges) {
        for (const auto& node : merges) {
            if (!IsNamed(node, "mergeCell")) continue;
            const CellRange range = ParseRange(AttributeText(node.attribute("ref")));
            if (range.first != range.last) sheet_.merges.push_back(range);
        }
    }

    void readPage(const pugi::xml_node& root) {
        PageSetup& page = sheet_.page;
        const auto setup = ChildNamed(root, "pageSetup");
        const int code = setup.attribute("paperSize").as_int(9);
        for (const Paper& paper : kPapers) {
            if (paper.code != code) continue;
            page.paperWidth = paper.width * pointsPerMillimetre;
            page.paperHeight = paper.height * pointsPerMillimetre;
        }
        const double ownWidth = Measure(AttributeText(setup.attribute("paperWidth")));
        const double ownHeight = Measure(AttributeText(setup.attribute("paperHeight")));
        constexpr double smallestPaper = 36, largestPaper = 4000;
        if (std::min(ownWidth, ownHeight) >= smallestPaper && std::max(ownWidth, ownHeight) <= largestPaper) {
            page.paperWidth = ownWidth;
            page.paperHeight = ownHeight;
        }
        page.landscape = std::strcmp(setup.attribute("orientation").value(), "landscape") == 0;
        if (page.landscape) std::swap(page.paperWidth, page.paperHeight);
        page.scalePercent = std::clamp(setup.attribute("scale").as_int(100), 10, 400);
        page.fitToPage = IsOn(ChildNamed(ChildNamed(root, "sheetPr"), "pageSetUpPr").attribute("fitToPage"));
        page.fitWidth = std::clamp(setup.attribute("fitToWidth").as_int(1), 0, 32767);
        page.fitHeight = std::clamp(setup.attribute("fitToHeight").as_int(1), 0, 32767);

        if (const auto margins = ChildNamed(root, "pageMargins")) {
            // Margins that meet would leave nothing to print on.
            const double widest = page.paperWidth * 0.45, tallest = page.paperHeight * 0.45;
            const auto margin = [&](const char* name, double largest, double otherwise) {
                return length(margins.attribute(name), largest / kPointsPerInch, otherwise / kPointsPerInch) *
                       kPointsPerInch;
            };
            page.left = margin("left", widest, page.left);
            page.right = margin("right", widest, page.right);
            page.top = margin("top", tallest, page.top);
            page.bottom = margin("bottom", tallest, page.bottom);
            page.header = margin("header", tallest, page.header);
            page.footer = margin("footer", tallest, page.footer);
        }
        const auto options = ChildNamed(root, "printOptions");
        page.centerHorizontally = IsOn(options.attribute("horizontalCentered"));
        page.centerVertically = IsOn(options.attribute("verticalCentered"));
        page.gridLines = IsOn(options.attribute("gridLines"));
        const auto texts = ChildNamed(root, "headerFooter");
        page.headerText = Unescaped(QString::fromUtf8(ChildNamed(texts, "oddHeader").text().get()));
        page.footerText = Unescaped(QString::fromUtf8(ChildNamed(texts, "oddFooter").text().get()));
        page.headersScale = IsOn(texts.attribute("scaleWithDoc"), true);
        for (const auto& node : ChildNamed(root, "rowBreaks")) {
            const int row = node.attribute("id").as_int();
            if (row >= 1 && row < kLastSheetRow) page.rowBreaks.push_back(row);
        }
        std::sort(page.rowBreaks.begin(), page.rowBreaks.end());
    }

    void readNames() {
        for (const auto& node : ChildNamed(workbook_.document_element(), "definedNames")) {
            if (node.attribute("localSheetId").as_int(-1) != sheetIndex_) continue;
            const QString name = AttributeText(node.attribute("name"));
            const QString value = QString::fromUtf8(node.text().get());
            if (name == u"_xlnm.Print_Area") readPrintArea(value);
            if (name == u"_xlnm.Print_Titles") readPrintTitles(value);
        }
    }

    // The ranges of a name without their sheet: 'A, B'!$A$1:$K$63,'A, B'!$7:$8
    static QStringList ranges(const QString& value) {
        QStringList found{QString()};
        bool quoted = false;
        for (const QChar c : value)
            if (c == u'\'')
                quoted = !quoted;
            else if (quoted || c == u'$')
                continue;
            else if (c == u'!')
                found.last().clear();
            else if (c == u',')
                found += QString();
            else
                found.last() += c;
        return found;
    }

    void readPrintArea(const QString& value) {
        const QStringList areas = ranges(value);
        if (areas.size() > 1) sheet_.warnings += u"印刷範囲は最初の1つだけが使われます。"_s;
        try {
            sheet_.page.printArea = ParseRange(areas.first());
        } catch (const RuntimeError&) {
            sheet_.warnings += u"印刷範囲 '%1' は使えません。"_s.arg(value);
        }
    }

    void readPrintTitles(const QString& value) {
        for (const QString& range : ranges(value)) {
            const QStringList ends = range.split(u':');
            bool first = false, last = false;
            const int from = ends.first().toInt(&first), to = ends.last().toInt(&last);
            if (!first || !last || from < 1 || to < from || to > kLastSheetRow) {
                sheet_.warnings += u"印刷タイトル '%1' は使えません(行だけが使えます)。"_s.arg(range);
                continue;
            }
            sheet_.page.titleFirstRow = from;
            sheet_.page.titleLastRow = to;
        }
    }

    void warn(const pugi::xml_node& root) {
        if (formulas_ > 0) {
            sheet_.warnings +=
                u"数式は計算されず、保存された値が印刷されます (%1 など %2 個)。"_s.arg(firstFormula_)
                    .arg(formulas_);
        }
        if (!unknownFormats_.isEmpty()) {
            sheet_.warnings += u"表示形式 %1 は使えません。数値は「標準」で印刷されます。"_s.arg(
                unknownFormats_.join(u"、"_s));
        }
        static constexpr struct {
            const char* element;
            const char16_t* what;
        } unshown[] = {{"conditionalFormatting", u"条件付き書式は印刷されません。"},
                       {"drawing", u"図・図形・テキスト ボックスは印刷されません。"},
                       {"picture", u"シートの背景は印刷されません。"},
                       {"colBreaks", u"列の改ページは使われません。"}};
        for (const auto& [element, what] : unshown)
            if (ChildNamed(root, element)) sheet_.warnings += QString::fromUtf16(what);
    }

    WorkbookParts parts_;
    QString file_;  ///< its name, for messages
    Sheet sheet_;
    pugi::xml_document workbook_;
    std::vector<WorkbookParts::Relation> relations_;
    QString workbookPart_, sheetPart_;
    int sheetIndex_ = 0;
    bool from1904_ = false;
    SheetFont normal_;
    int digitPixels_ = 8;
    std::function<SheetFont(const pugi::xml_node&)> readFont_;
    std::vector<Cell> strings_;
    std::vector<bool> isDate_;
    int formulas_ = 0;
    QString firstFormula_;
    QStringList unknownFormats_;
};

}  // namespace

Sheet ReadSheet(const QString& path, const QString& sheetName) {
    return Reader(path, sheetName).read();
}

}  // namespace akarix
