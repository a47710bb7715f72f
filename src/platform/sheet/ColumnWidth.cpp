#include "platform/sheet/ColumnWidth.h"

#include <cmath>

namespace akarix {

namespace {

constexpr double kPointsPerPixel = 0.75;

}  // namespace

int DigitPixels(const SheetFont& normal) {
    const double pixels = normal.size / kPointsPerPixel;
    // Half the em, rounded up: the classic Japanese fonts.
    if (normal.name.startsWith(u"ＭＳ") || normal.name.startsWith(u"MS "))
        return static_cast<int>(std::ceil(std::round(pixels) / 2));
    struct Ratio {
        const char16_t* name;
        double ofEm;
    };
    static constexpr Ratio ratios[] = {{u"Calibri", 0.507}, {u"Arial", 0.556},   {u"游", 0.56},
                                       {u"Yu ", 0.56},      {u"メイリオ", 0.62}, {u"Meiryo", 0.62},
                                       {u"Verdana", 0.636}, {u"Times", 0.5},     {u"IPA", 0.5}};
    double ofEm = 0.53;
    for (const Ratio& ratio : ratios)
        if (normal.name.startsWith(QStringView(ratio.name))) ofEm = ratio.ofEm;
    return std::max(1, static_cast<int>(std::round(pixels * ofEm)));
}

double ColumnPoints(double widthInDigits, int digitPixels) {
    return std::trunc((256 * widthInDigits + std::trunc(128.0 / digitPixels)) / 256 * digitPixels) *
           kPointsPerPixel;
}

double DefaultColumnPoints(int baseDigits, int digitPixels) {
    const double padding = 2 * std::ceil(digitPixels / 4.0) + 1;
    return std::ceil((baseDigits * digitPixels + padding) / 8) * 8 * kPointsPerPixel;
}

}  // namespace akarix
