#include "output/DetailRows.h"

#include "dialogs/ShowAlert.h"
#include "output/DetailTotals.h"
#include "output/PlayScript.h"
#include "output/PrintReport.h"
#include "output/ReportOwner.h"
#include "platform/print/PrintSurface.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/NumberOf.h"
#include "platform/runtime/RuntimeError.h"
#include "store/FieldValue.h"
#include "values/NumStr.h"
#include "values/NumVal.h"
#include "values/Text.h"

namespace akarix {
namespace {

/// A field that is not in the recordset costs no more than the step that wanted it.
template <class Step>
void PastMissingField(Step step) {
    constexpr int itemNotFound = 3265;
    try {
        step();
    } catch (const RuntimeError& error) {
        if (error.number() != itemNotFound) throw;
    }
}

Recordset& SetOf(PrintReport& report) {
    if (!report.DetailSet) throw RuntimeError(91);
    return *report.DetailSet;
}

/// A number equals a number of any kind; text equals text alone.
bool SameValue(const Variant& a, const Variant& b) {
    if (a.IsText() || b.IsText()) return a == b;
    return NumberOf(a).plainText() == NumberOf(b).plainText();
}

bool IsNumber(const PrintColumn& column) {
    return column.Kind == u"N";
}

}  // namespace

void DetailRows::MeasureColumns() {
    for (int i = 0; i < report_.ColCount.value(); ++i) {
        PrintColumn& column = report_.Column(i);
        if (!column.FontName.isEmpty()) surface_.SetFontName(column.FontName);
        if (column.FontSize != 0) surface_.SetFontSize(column.FontSize.value());
        const double width = column.Kind == u"S" ? surface_.TextWidth(u" "_s) * NumVal(column.Mask)
                                                 : surface_.TextWidth(column.Mask);
        column.Width = Int16::Rounded(width);
    }
}

bool DetailRows::PrintPage() {
    try {
        return printPage();
    } catch (const RuntimeError& error) {
        if (failed_) throw;
        failed_ = true;
        ShowAlert(u"エラー"_s + QString::number(error.number()));
        return false;
    }
}

bool DetailRows::printPage() {
    Recordset& set = SetOf(report_);
    text_.clear();
    report_.pen.PenY = report_.DetailTop;
    report_.pen.ToLeft();
    if (report_.RowsOnPage == 0) heading();
    const bool empty = set.Eof();
    if (!empty) do {
            groupChange();
            row();
            set.MoveNext();
        } while (!set.Eof() && report_.RowsOnPage < report_.RowsPerPage);
    const bool ended = set.Eof();
    if (ended && !empty) report_.DetailEnded = true;
    report_.RowsOnPage = 0;
    PastMissingField([&] { PrintPageTotals(report_, surface_); });
    if (ended) PrintGroupTotals(report_, surface_, true);
    report_.PageNo += 1;
    return ended;
}

void DetailRows::heading() {
    Pen& pen = report_.pen;
    pen.PenX = report_.DetailLeft;
    for (int i = 0; i < report_.ColCount.value(); ++i) {
        const PrintColumn& column = report_.Column(i);
        const Int16 left = pen.PenX;
        if (IsNumber(column))
            pen.PenX = Int16::Rounded((left + column.Width).value() - surface_.TextWidth(column.Title));
        pen.Print(surface_, column.Title);
        pen.PenX = left + column.Width + column.Gap;
    }
    pen.PenY += pen.LineStep;
    if (!report_.NoTopRule) pen.Rule(surface_);
}

void DetailRows::groupChange() {
    if (report_.GroupField.isEmpty()) return;
    PastMissingField([&] {
        const Variant value = NullToZero(SetOf(report_)[report_.GroupField]);
        if (!report_.GroupValue.IsNull() && !SameValue(report_.GroupValue, value))
            PrintGroupTotals(report_, surface_, false);
        report_.GroupValue = value;
    });
}

void DetailRows::row() {
    Pen& pen = report_.pen;
    pen.PenX = report_.DetailLeft;
    for (int i = 0; i < report_.ColCount.value(); ++i)
        cell(report_.Column(i), i);
    pen.PenY += pen.LineStep;
    report_.RowsOnPage += 1;
    failed_ = false;
}

void DetailRows::cell(const PrintColumn& column, int index) {
    Pen& pen = report_.pen;
    const Int16 left = pen.PenX;
    const Int16 top = pen.PenY;
    PastMissingField([&] { fetch(column, index); });
    if (column.FixedX != 0 || column.FixedY != 0) {
        pen.PenX = column.FixedX;
        pen.PenY = column.FixedY + report_.RowsOnPage * pen.LineStep + report_.DetailTop;
    }
    if (!column.FontName.isEmpty()) SelectFont(surface_, column.FontName);
    if (column.FontSize != 0) surface_.SetFontSize(column.FontSize.value());
    pen.Print(surface_, text_);
    pen.PenX = left + column.Width + column.Gap;
    pen.PenY = top;
}

void DetailRows::fetch(const PrintColumn& column, int index) {
    if (column.Source.contains(u'@')) {
        text_ = report_.owner().alpha(CInt(column.Source.mid(1)));
        if (IsNumber(column)) {
            text_ = PadFormat(NumVal(text_), column.Mask);
            if (column.WithTotal) addToTotals(index, CCur(NumVal(text_)));
        }
    } else if (column.Kind == u"S") {
        text_ = NullToEmpty(SetOf(report_)[column.Source]);
    } else if (IsNumber(column)) {
        const Currency value = MoneyOf(SetOf(report_)[column.Source]);
        text_ = PadFormat(value, column.Mask);
        if (column.WithTotal) addToTotals(index, value);
    }
}

void DetailRows::addToTotals(int index, Currency value) {
    report_.PageTotal[static_cast<size_t>(index)] += value;
    report_.RunTotal[static_cast<size_t>(index)] += value;
}

}  // namespace akarix
