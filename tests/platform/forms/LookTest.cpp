#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "platform/forms/Colours.h"

namespace akarix {
namespace {

/// The relative luminance of WCAG 2.1.
double Luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

TEST(Look, WordsAndEdgesStandOutFromTheirGround) {
    namespace c = colours;
    struct Case {
        QColor front;
        QColor ground;
        double least;
    };
    constexpr double words = 4.5;
    constexpr double edges = 3;
    for (const Case& each : {Case{c::kInk, c::kFocusTint, words}, Case{c::kQuiet, c::kWindow, words},
                             Case{c::kQuiet, c::kCard, words}, Case{c::kAccentInk, c::kRowTint, words},
                             Case{c::kAccentInk, c::kFocusTint, words}, Case{c::kDanger, c::kButton, words},
                             Case{c::kDanger, c::kFocusTint, words}, Case{Qt::white, c::kAccent, words},
                             Case{c::kAccent, c::kWindow, edges}, Case{c::kMarkLine, c::kCard, edges}}) {
        EXPECT_GE(Contrast(each.front, each.ground), each.least)
            << each.front.name().toStdString() << " on " << each.ground.name().toStdString();
    }
}

}  // namespace
}  // namespace akarix
