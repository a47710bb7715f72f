#include "platform/sheet/HeaderFooter.h"

#include <array>
#include <vector>

#include "platform/print/PaperFont.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/sheet/SheetLayout.h"

namespace akarix {
namespace {

struct Run {
    PaperFontKey font;
    QString text;
};
using Runs = std::vector<Run>;

enum Section { Left, Center, Right };

/// Reads a header's codes: &L &C &R start a section, others stand for a value or change the font.
class CodeReader {
 public:
    CodeReader(const Sheet& sheet, double scale, int pageNumber, int pageCount)
        : sheet_(sheet), scale_(scale), pageNumber_(pageNumber), pageCount_(pageCount) {
        const SheetFont& normal = sheet.styles.front().font;
        normal_ = {normal.name, normal.size * scale};
        font_ = normal_;
    }

    std::array<Runs, 3> read(const QString& codes) {
        for (qsizetype i = 0; i < codes.size(); ++i) {
            if (codes.at(i) != QLatin1Char('&') || i + 1 == codes.size()) {
                add(codes.at(i));
                continue;
            }
            i = code(codes, i + 1);
        }
        return sections_;
    }

 private:
    void add(const QString& text) {
        Runs& runs = sections_[static_cast<size_t>(section_)];
        if (runs.empty() || !(runs.back().font == font_)) runs.push_back({font_, {}});
        runs.back().text += text;
    }
    void start(Section section) {
        section_ = section;
        font_ = normal_;
    }

    /// \return the index of the code's last letter
    qsizetype code(const QString& codes, qsizetype at) {
        if (codes.at(at).isDigit()) return fontSize(codes, at);
        switch (codes.at(at).toUpper().unicode()) {
            case 'L':
                start(Left);
                break;
            case 'C':
                start(Center);
                break;
            case 'R':
                start(Right);
                break;
            case 'P':
                add(QString::number(pageNumber_));
                break;
            case 'N':
                add(QString::number(pageCount_));
                break;
            case 'D':
                add(Format(Today(), u"yyyy/mm/dd"_s));
                break;
            case 'T':
                add(Format(Now(), u"h:nn"_s));
                break;
            case 'A':
                add(sheet_.name);
                break;
            case '&':
                add(u"&"_s);
                break;
            case 'B':
                font_.bold = !font_.bold;
                break;
            case 'I':
                font_.italic = !font_.italic;
                break;
            case 'U':
            case 'E':
                font_.underline = !font_.underline;
                break;
            case 'S':
                font_.strikeout = !font_.strikeout;
                break;
            case 'K':
                return at + 6;  // a colour; headers are printed black
            case '"':
                return fontName(codes, at);
            default:  // the file's name and folder, pictures: a printed page has none of them
                break;
        }
        return at;
    }

    qsizetype fontSize(const QString& codes, qsizetype at) {
        qsizetype end = at;
        while (end < codes.size() && codes.at(end).isDigit())
            ++end;
        font_.size = std::max(1, codes.mid(at, end - at).toInt()) * scale_;
        return end - 1;
    }

    qsizetype fontName(const QString& codes, qsizetype at) {
        const qsizetype end = codes.indexOf(QLatin1Char('"'), at + 1);
        if (end < 0) return codes.size();
        const QString named = codes.mid(at + 1, end - at - 1);
        const QString name = named.section(QLatin1Char(','), 0, 0);
        const QString weight = named.section(QLatin1Char(','), 1);
        if (!name.isEmpty() && name != u"-"_s) font_.name = name;
        font_.bold = weight.contains(u"Bold"_s) || weight.contains(u"太字"_s);
        font_.italic = weight.contains(u"Italic"_s) || weight.contains(u"斜体"_s);
        return end;
    }

    const Sheet& sheet_;
    double scale_;
    int pageNumber_, pageCount_;
    PaperFontKey normal_, font_;
    Section section_ = Center;
    std::array<Runs, 3> sections_;
};

struct PlacedLine {
    Runs runs;
    double width = 0;
    double em = 0;
};

std::vector<PlacedLine> LinesOf(const Runs& runs) {
    std::vector<PlacedLine> lines;
    if (runs.empty()) return lines;
    lines.emplace_back();
    for (const Run& run : runs) {
        const QStringList parts = run.text.split(QLatin1Char('\n'));
        for (qsizetype i = 0; i < parts.size(); ++i) {
            if (i > 0) lines.emplace_back();
            PaperFont& font = FontOnPaper(run.font);
            lines.back().runs.push_back({run.font, parts.at(i)});
            lines.back().width += font.width(parts.at(i));
            lines.back().em = std::max(lines.back().em, font.em());
        }
    }
    return lines;
}

void PaintSection(QPainter& painter, const Runs& runs, Section section, const PageSetup& page,
                  bool atBottom) {
    const std::vector<PlacedLine> lines = LinesOf(runs);
    double height = 0;
    for (const PlacedLine& line : lines)
        height += line.em;
    double top =
        atBottom ? (page.paperHeight - page.footer) * TwipsPerPoint - height : page.header * TwipsPerPoint;
    const double left = page.left * TwipsPerPoint;
    const double right = (page.paperWidth - page.right) * TwipsPerPoint;
    for (const PlacedLine& line : lines) {
        double x = left;
        if (section == Center) x = (left + right - line.width) / 2;
        if (section == Right) x = right - line.width;
        for (const Run& run : line.runs) {
            PaperFont& font = FontOnPaper(run.font);
            font.draw(painter, QPointF(x, top + line.em * 0.859), run.text);
            x += font.width(run.text);
        }
        top += line.em;
    }
}

}  // namespace

void PaintHeaderFooter(QPainter& painter, const Sheet& sheet, double scale, int pageNumber, int pageCount) {
    painter.setPen(Qt::black);
    for (const bool atBottom : {false, true}) {
        const QString& codes = atBottom ? sheet.page.footerText : sheet.page.headerText;
        if (codes.isEmpty()) continue;
        const std::array<Runs, 3> sections = CodeReader(sheet, scale, pageNumber, pageCount).read(codes);
        for (const Section section : {Left, Center, Right})
            PaintSection(painter, sections[static_cast<size_t>(section)], section, sheet.page, atBottom);
    }
}

}  // namespace akarix
