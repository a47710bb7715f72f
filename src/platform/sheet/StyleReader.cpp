#include "platform/sheet/StyleReader.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/runtime/Literals.h"
#include "platform/sheet/IndexedColor.h"
#include "platform/sheet/WorkbookParts.h"

namespace akarix {

namespace {

template <class T>
T At(const std::vector<T>& list, const pugi::xml_attribute& index) {
    const auto i = static_cast<size_t>(index.as_uint());
    return i < list.size() ? list[i] : T{};
}

// The formats that a workbook names by number alone, as a Japanese spreadsheet has them.
QString BuiltInFormat(int id) {
    static constexpr const char16_t *eraDots = u"[$-411]ge.m.d",
                                    *eraLong = u"[$-411]ggge\"年\"m\"月\"d\"日\"",
                                    *yearMonth = u"yyyy\"年\"m\"月\"", *monthDay = u"m\"月\"d\"日\"";
    static constexpr struct {
        int id;
        const char16_t* code;
    } formats[] = {{1, u"0"},
                   {2, u"0.00"},
                   {3, u"#,##0"},
                   {4, u"#,##0.00"},
                   {5, u"\"¥\"#,##0;\"¥\"\\-#,##0"},
                   {6, u"\"¥\"#,##0;[Red]\"¥\"\\-#,##0"},
                   {7, u"\"¥\"#,##0.00;\"¥\"\\-#,##0.00"},
                   {8, u"\"¥\"#,##0.00;[Red]\"¥\"\\-#,##0.00"},
                   {9, u"0%"},
                   {10, u"0.00%"},
                   {11, u"0.00E+00"},
                   {12, u"# ?/?"},
                   {13, u"# ?\?/?\?"},
                   {14, u"yyyy/m/d"},
                   {15, u"d-mmm-yy"},
                   {16, u"d-mmm"},
                   {17, u"mmm-yy"},
                   {18, u"h:mm AM/PM"},
                   {19, u"h:mm:ss AM/PM"},
                   {20, u"h:mm"},
                   {21, u"h:mm:ss"},
                   {22, u"yyyy/m/d h:mm"},
                   {27, eraDots},
                   {28, eraLong},
                   {29, eraLong},
                   {30, u"m/d/yy"},
                   {31, u"yyyy\"年\"m\"月\"d\"日\""},
                   {32, u"h\"時\"mm\"分\""},
                   {33, u"h\"時\"mm\"分\"ss\"秒\""},
                   {34, yearMonth},
                   {35, monthDay},
                   {36, eraDots},
                   {37, u"#,##0;\\-#,##0"},
                   {38, u"#,##0;[Red]\\-#,##0"},
                   {39, u"#,##0.00;\\-#,##0.00"},
                   {40, u"#,##0.00;[Red]\\-#,##0.00"},
                   {41, u"_ * #,##0_ ;_ * \\-#,##0_ ;_ * \"-\"_ ;_ @_ "},
                   {42, u"_ \"¥\"* #,##0_ ;_ \"¥\"* \\-#,##0_ ;_ \"¥\"* \"-\"_ ;_ @_ "},
                   {43, u"_ * #,##0.00_ ;_ * \\-#,##0.00_ ;_ * \"-\"?\?_ ;_ @_ "},
                   {44, u"_ \"¥\"* #,##0.00_ ;_ \"¥\"* \\-#,##0.00_ ;_ \"¥\"* \"-\"?\?_ ;_ @_ "},
                   {45, u"mm:ss"},
                   {46, u"[h]:mm:ss"},
                   {47, u"mm:ss.0"},
                   {48, u"##0.0E+0"},
                   {49, u"@"},
                   {50, eraDots},
                   {51, eraLong},
                   {52, yearMonth},
                   {53, monthDay},
                   {54, eraLong},
                   {55, yearMonth},
                   {56, monthDay},
                   {57, eraDots},
                   {58, eraLong}};
    for (const auto& format : formats)
        if (format.id == id) return QString::fromUtf16(format.code);
    return u"General"_s;
}

class Reader {
 public:
    Reader(const pugi::xml_document& styles, const pugi::xml_document& theme)
        : root_(styles.document_element()) {
        readTheme(theme.document_element());
        int index = 0;
        for (const auto& node : ChildNamed(ChildNamed(root_, "colors"), "indexedColors"))
            palette_[index++] = argb(AttributeText(node.attribute("rgb")));
    }

    WorkbookStyles read() {
        for (const auto& node : ChildNamed(root_, "numFmts"))
            formats_[node.attribute("numFmtId").as_int()] = AttributeText(node.attribute("formatCode"));
        for (const auto& node : ChildNamed(root_, "fonts"))
            fonts_.push_back(font(node));
        for (const auto& node : ChildNamed(root_, "fills"))
            fills_.push_back(fill(ChildNamed(node, "patternFill")));
        for (const auto& node : ChildNamed(root_, "borders"))
            borders_.push_back(borders(node));

        WorkbookStyles styles;
        for (const auto& node : ChildNamed(root_, "cellXfs"))
            styles.cells.push_back(cellStyle(node));
        if (styles.cells.empty()) styles.cells.emplace_back();
        styles.normal = normalFont(styles.cells.front().font);
        styles.readFont = [*this](const pugi::xml_node& node) { return font(node); };
        return styles;
    }

 private:
    struct Borders {
        Border left, right, top, bottom, falling, rising;
    };

    void readTheme(const pugi::xml_node& theme) {
        // The scheme stands dark, light, dark, light; styles count light first.
        static const char* const order[] = {"lt1",     "dk1",     "lt2",     "dk2",
                                            "accent1", "accent2", "accent3", "accent4",
                                            "accent5", "accent6", "hlink",   "folHlink"};
        const auto scheme = ChildNamed(ChildNamed(theme, "themeElements"), "clrScheme");
        for (const char* name : order) {
            const auto color = ChildNamed(scheme, name).first_child();
            theme_.push_back(
                argb(AttributeText(color.attribute(IsNamed(color, "sysClr") ? "lastClr" : "val"))));
        }
    }

    static QColor argb(const QString& hex) { return hex.size() < 6 ? QColor() : QColor(u'#' + hex.right(6)); }

    QColor color(const pugi::xml_node& node, const QColor& automatic) const {
        QColor found;
        if (const auto rgb = node.attribute("rgb"))
            found = argb(AttributeText(rgb));
        else if (const auto theme = node.attribute("theme"))
            found = At(theme_, theme);
        else if (const auto index = node.attribute("indexed"))
            found = palette_.value(index.as_int(), IndexedColor(index.as_int()));
        if (!found.isValid()) return automatic;
        const double tint = std::clamp(node.attribute("tint").as_double(), -1.0, 1.0);
        if (tint == 0 || std::isnan(tint)) return found;
        float hue = 0, saturation = 0, lightness = 0;
        found.getHslF(&hue, &saturation, &lightness);
        const auto t = static_cast<float>(tint);
        lightness = t < 0 ? lightness * (1 + t) : lightness * (1 - t) + t;
        return QColor::fromHslF(hue, saturation, std::clamp(lightness, 0.0F, 1.0F)).toRgb();
    }

    static bool flag(const pugi::xml_node& parent, const char* name) {
        const auto node = ChildNamed(parent, name);
        return node && IsOn(node.attribute("val"), true);
    }

    SheetFont font(const pugi::xml_node& node) const {
        SheetFont font;
        for (const char* tag : {"name", "rFont"})
            if (const auto name = ChildNamed(node, tag)) font.name = AttributeText(name.attribute("val"));
        if (const auto size = ChildNamed(node, "sz"))
            font.size = std::clamp(size.attribute("val").as_double(font.size), 1.0, 409.0);
        font.bold = flag(node, "b");
        font.italic = flag(node, "i");
        font.strikeout = flag(node, "strike");
        const auto underline = ChildNamed(node, "u");
        font.underline = underline && std::strcmp(underline.attribute("val").value(), "none") != 0;
        const QByteArray place = ChildNamed(node, "vertAlign").attribute("val").value();
        font.raised = place == "superscript" ? 1 : place == "subscript" ? -1 : 0;
        font.color = color(ChildNamed(node, "color"), Qt::black);
        return font;
    }

    // A pattern becomes the even tone that it has on paper.
    QColor fill(const pugi::xml_node& node) const {
        const QByteArray type = node.attribute("patternType").value();
        static const QHash<QByteArray, double> densities{
            {"solid", 1},           {"darkGray", .75},        {"mediumGray", .5},
            {"lightGray", .25},     {"gray125", .125},        {"gray0625", .06},
            {"darkHorizontal", .5}, {"darkVertical", .5},     {"darkDown", .5},
            {"darkUp", .5},         {"darkGrid", .6},         {"darkTrellis", .75},
            {"lightDown", .25},     {"lightUp", .25},         {"lightGrid", .4},
            {"lightTrellis", .4},   {"lightHorizontal", .25}, {"lightVertical", .25}};
        const auto density = densities.find(type);
        if (density == densities.end()) return {};
        const bool solid = *density >= 1;
        const QColor front = color(ChildNamed(node, "fgColor"), solid ? QColor() : QColor(Qt::black));
        if (solid || !front.isValid()) return front;
        const QColor back = color(ChildNamed(node, "bgColor"), Qt::white);
        const auto mixed = [&](float a, float b) {
            return a * static_cast<float>(*density) + b * static_cast<float>(1 - *density);
        };
        return QColor::fromRgbF(mixed(front.redF(), back.redF()), mixed(front.greenF(), back.greenF()),
                                mixed(front.blueF(), back.blueF()));
    }

    Border border(const pugi::xml_node& node) const {
        static const QHash<QByteArray, BorderStyle> styles{
            {"hair", BorderStyle::Hair},
            {"dotted", BorderStyle::Dotted},
            {"dashed", BorderStyle::Dashed},
            {"thin", BorderStyle::Thin},
            {"medium", BorderStyle::Medium},
            {"thick", BorderStyle::Thick},
            {"double", BorderStyle::Double},
            {"mediumDashed", BorderStyle::MediumDashed},
            {"dashDot", BorderStyle::DashDot},
            {"mediumDashDot", BorderStyle::MediumDashDot},
            {"slantDashDot", BorderStyle::MediumDashDot},
            {"dashDotDot", BorderStyle::DashDotDot},
            {"mediumDashDotDot", BorderStyle::MediumDashDotDot}};
        return {styles.value(node.attribute("style").value(), BorderStyle::None),
                color(ChildNamed(node, "color"), Qt::black)};
    }

    Borders borders(const pugi::xml_node& node) const {
        const auto side = [&](const char* name, const char* other) {
            const auto found = ChildNamed(node, name);
            return border(found ? found : ChildNamed(node, other));
        };
        const Border diagonal = border(ChildNamed(node, "diagonal"));
        return {side("left", "start"),
                side("right", "end"),
                side("top", "top"),
                side("bottom", "bottom"),
                IsOn(node.attribute("diagonalDown")) ? diagonal : Border(),
                IsOn(node.attribute("diagonalUp")) ? diagonal : Border()};
    }

    CellStyle cellStyle(const pugi::xml_node& node) const {
        CellStyle style;
        style.font = At(fonts_, node.attribute("fontId"));
        style.fill = At(fills_, node.attribute("fillId"));
        const Borders lines = At(borders_, node.attribute("borderId"));
        style.left = lines.left;
        style.right = lines.right;
        style.top = lines.top;
        style.bottom = lines.bottom;
        style.falling = lines.falling;
        style.rising = lines.rising;
        const int format = node.attribute("numFmtId").as_int();
        style.numberFormat = formats_.contains(format) ? formats_[format] : BuiltInFormat(format);
        align(style, ChildNamed(node, "alignment"));
        return style;
    }

    static void align(CellStyle& style, const pugi::xml_node& node) {
        static const QHash<QByteArray, HorizontalAlign> horizontals{
            {"left", HorizontalAlign::Left},
            {"center", HorizontalAlign::Center},
            {"right", HorizontalAlign::Right},
            {"fill", HorizontalAlign::Fill},
            {"justify", HorizontalAlign::Justify},
            {"centerContinuous", HorizontalAlign::CenterAcross},
            {"distributed", HorizontalAlign::Distributed}};
        static const QHash<QByteArray, VerticalAlign> verticals{{"top", VerticalAlign::Top},
                                                                {"center", VerticalAlign::Center},
                                                                {"justify", VerticalAlign::Justify},
                                                                {"distributed", VerticalAlign::Distributed}};
        style.horizontal = horizontals.value(node.attribute("horizontal").value(), HorizontalAlign::General);
        style.vertical = verticals.value(node.attribute("vertical").value(), VerticalAlign::Bottom);
        style.wrap = IsOn(node.attribute("wrapText"));
        style.shrink = IsOn(node.attribute("shrinkToFit"));
        style.indent = std::clamp(node.attribute("indent").as_int(), 0, 250);
        const int rotation = node.attribute("textRotation").as_int();
        // Angles below the horizontal are written as 91 to 180.
        style.rotation = rotation == 255                    ? 255
                         : rotation > 90 && rotation <= 180 ? 90 - rotation
                                                            : std::clamp(rotation, 0, 90);
    }

    SheetFont normalFont(const SheetFont& otherwise) const {
        unsigned index = 0;
        for (const auto& style : ChildNamed(root_, "cellStyles")) {
            const auto builtIn = style.attribute("builtinId");
            if (builtIn && builtIn.as_int() == 0) index = style.attribute("xfId").as_uint();
        }
        unsigned at = 0;
        for (const auto& xf : ChildNamed(root_, "cellStyleXfs")) {
            if (at++ != index) continue;
            const auto font = static_cast<size_t>(xf.attribute("fontId").as_uint());
            if (font < fonts_.size()) return fonts_[font];
        }
        return otherwise;
    }

    pugi::xml_node root_;
    std::vector<QColor> theme_;
    QHash<int, QColor> palette_;
    QHash<int, QString> formats_;
    std::vector<SheetFont> fonts_;
    std::vector<QColor> fills_;
    std::vector<Borders> borders_;
};

}  // namespace

WorkbookStyles ReadStyles(const pugi::xml_document& styles, const pugi::xml_document& theme) {
    return Reader(styles, theme).read();
}

}  // namespace akarix
