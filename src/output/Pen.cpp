#include "output/Pen.h"

#include "platform/print/PrintSurface.h"

namespace akarix {
namespace {

constexpr int EmptyLineHeight = 285;
constexpr int RuleHeight = 100;

}  // namespace

void Pen::Init() {
    XOffset = YOffset = PenX = PenY = 0;
    Align = TextAlign::Left;
}

void Pen::Print(PrintSurface& surface, const QString& text) {
    const double width = surface.TextWidth(text);
    if (Align == TextAlign::Center) PenX = Int16::Rounded((AreaWidth.value() - width) / 2);
    if (Align == TextAlign::Right) PenX = Int16::Rounded(AreaWidth.value() - width);
    surface.Print((XOffset + PenX).value(), (YOffset + PenY).value(), text);
    PenX = Int16::Rounded(PenX.value() + width);
    const double height = surface.TextHeight(text);
    if (height > LineStep.value()) LineStep = Int16::Rounded(height);
}

void Pen::NewLine() {
    PenY += lineHeight();
    PenX = 0;
    LineStep = 0;
}

void Pen::Rule(PrintSurface& surface) {
    const int y = (YOffset + PenY).value();
    surface.Line(XOffset.value(), y, AreaWidth.value(), y);
    PenY += RuleHeight;
}

void Pen::ToLeft() {
    Align = TextAlign::Left;
    PenX = 0;
}

Int16 Pen::lineHeight() const {
    return LineStep == 0 ? Int16(EmptyLineHeight) : LineStep;
}

}  // namespace akarix
