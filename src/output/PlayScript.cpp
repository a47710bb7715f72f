#include "output/PlayScript.h"

#include <algorithm>
#include <iterator>

#include "output/PrintReport.h"
#include "output/ReportOwner.h"
#include "output/ScriptLine.h"
#include "platform/print/PrintSurface.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Text.h"
#include "values/Dates.h"
#include "values/NumStr.h"

namespace akarix {
namespace {

using Handler = void (*)(PrintReport& report, PrintSurface& surface, const QString& argument);

struct Tag {
    const char16_t* name;
    Handler play;
};

QString TodayText(Int16 form) {
    const Date today = Today();
    const QString day = u"%1.%2"_s.arg(Month(today)).arg(Day(today));
    if (form == 2) return QString::number(DisplayYear(today)) + u'.' + day;
    return form == 3 ? day : QString();
}

void PlayText(PrintReport& report, PrintSurface& surface, const QString& text) {
    report.pen.Print(surface, text);
}

void PlayFree(PrintReport& report, PrintSurface& surface, const QString& argument) {
    ScriptArguments arguments(argument);
    report.pen.PenX = arguments.number();
    report.pen.PenY = arguments.number();
    report.pen.Print(surface, arguments.rest());
}

constexpr Tag kTags[] = {
    // --- the page
    {u"AREA",
     [](PrintReport& report, PrintSurface& surface, const QString& argument) {
         ScriptArguments arguments(argument);
         Pen& pen = report.pen;
         pen.AreaWidth = arguments.number();
         pen.AreaHeight = ScriptNumber(arguments.rest());
         surface.SetArea(pen.AreaWidth.value(), pen.AreaHeight.value());
     }},
    {u"SETWIDTH",
     [](PrintReport& report, PrintSurface&, const QString& argument) {
         // Unlike the other numbers this one is taken as written: "9a" is an error, not 9.
         report.pen.AreaWidth = CInt(Trim(argument));
     }},
    {u"XOFFSET", [](PrintReport& report, PrintSurface&,
                    const QString& argument) { report.pen.XOffset = ScriptNumber(argument); }},
    {u"YOFFSET", [](PrintReport& report, PrintSurface&,
                    const QString& argument) { report.pen.YOffset = ScriptNumber(argument); }},
    {u"BKGRD", [](PrintReport& report, PrintSurface&, const QString&) { report.owner().BKGRD(); }},
    {u"GRDBKGRD", [](PrintReport&, PrintSurface&, const QString&) {}},  // written in scripts, means nothing

    // --- the pen
    {u"CL", [](PrintReport& report, PrintSurface&, const QString&) { report.pen.NewLine(); }},
    {u"RIGHT",
     [](PrintReport& report, PrintSurface&, const QString&) { report.pen.Align = TextAlign::Right; }},
    {u"CENTER",
     [](PrintReport& report, PrintSurface&, const QString&) { report.pen.Align = TextAlign::Center; }},
    {u"LEFT", [](PrintReport& report, PrintSurface&, const QString&) { report.pen.ToLeft(); }},
    {u"LOCATE",
     [](PrintReport& report, PrintSurface&, const QString& argument) {
         ScriptArguments arguments(argument);
         report.pen.PenX = arguments.number();
         report.pen.PenY = ScriptNumber(arguments.rest());
     }},
    {u"FOOTER",
     [](PrintReport& report, PrintSurface&, const QString& argument) {
         Pen& pen = report.pen;
         pen.PenY = pen.AreaHeight - pen.lineHeight() * ScriptNumber(argument);
     }},
    {u"ZOUBUN", [](PrintReport& report, PrintSurface&,
                   const QString& argument) { report.pen.LineStep = ScriptNumber(argument); }},

    // --- fonts
    {u"FONT", [](PrintReport&, PrintSurface& surface, const QString& name) { SelectFont(surface, name); }},
    {u"SIZE", [](PrintReport&, PrintSurface& surface,
                 const QString& argument) { surface.SetFontSize(ScriptNumber(argument).value()); }},

    // --- marks on the page
    {u"FREE", PlayFree},
    {u"FREETOP",
     [](PrintReport& report, PrintSurface& surface, const QString& argument) {
         if (report.PageNo == 1) PlayFree(report, surface, argument);
     }},
    {u"PAGE",
     [](PrintReport& report, PrintSurface& surface, const QString&) {
         report.pen.Print(surface, u"ページ "_s + NumStr(report.PageNo.value()));
     }},
    {u"DATE", [](PrintReport& report, PrintSurface& surface,
                 const QString& argument) { report.pen.Print(surface, TodayText(ScriptNumber(argument))); }},
    {u"LINE", [](PrintReport& report, PrintSurface& surface, const QString&) { report.pen.Rule(surface); }},
    {u"DRAWLINE",
     [](PrintReport& report, PrintSurface& surface, const QString& argument) {
         ScriptArguments arguments(argument);
         const Pen& pen = report.pen;
         const Int16 x1 = pen.XOffset + arguments.number();
         const Int16 y1 = pen.YOffset + arguments.number();
         const Int16 x2 = pen.XOffset + arguments.number();
         const Int16 y2 = pen.YOffset + ScriptNumber(arguments.rest());
         surface.Line(x1.value(), y1.value(), x2.value(), y2.value());
     }},

    // --- where the detail rows go
    {u"DTPOS",
     [](PrintReport& report, PrintSurface&, const QString&) {
         report.DetailTop = report.pen.PenY;
         report.DetailLeft = report.pen.PenX;
     }},
    {u"DTCNT", [](PrintReport& report, PrintSurface&,
                  const QString& argument) { report.RowsPerPage = ScriptNumber(argument); }},
};

/// Plain text is played as text, and so is what stands behind a tag that nobody knows.
Handler HandlerOf(const QString& tag) {
    const auto* found = std::find_if(std::begin(kTags), std::end(kTags),
                                     [&](const Tag& known) { return tag == QStringView(known.name); });
    return found == std::end(kTags) ? PlayText : found->play;
}

}  // namespace

void PlayScript(PrintReport& report, PrintSurface& surface) {
    // Counted, since an owner may add lines from its background.
    for (size_t i = 0; i < report.ScriptLines.size(); ++i) {
        const ScriptLine line(report.ScriptLines[i]);
        HandlerOf(line.tag)(report, surface, line.argument);
    }
}

void SelectFont(PrintSurface& surface, const QString& name) {
    constexpr int japanese = 128;
    constexpr int ansi = 0;
    surface.SetFontCharset(name == u"CODE39" ? ansi : japanese);
    surface.SetFontName(name);
}

}  // namespace akarix
