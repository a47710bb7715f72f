#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "platform/forms/Colours.h"

namespace akarix {
namespace {

/// The relative luminance of WCAG 2.1.
double luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
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
    for (const Case& each : {Case{c::ink, c::focusTint, words}, Case{c::quiet, c::window, words},
                             Case{c::quiet, c::card, words}, Case{c::accentInk, c::rowTint, words},
                             Case{c::accentInk, c::focusTint, words}, Case{c::danger, c::button, words},
                             Case{c::danger, c::focusTint, words}, Case{Qt::white, c::accent, words},
                             Case{c::accent, c::window, edges}, Case{c::markLine, c::card, edges}}) {
        EXPECT_GE(contrast(each.front, each.ground), each.least)
            << each.front.name().toStdString() << " on " << each.ground.name().toStdString();
    }
}

}  // namespace
}  // namespace akarix
