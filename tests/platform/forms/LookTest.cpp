#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "platform/forms/Colours.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Icons.h"

namespace akarix {
namespace {

TEST(Look, EveryWindowCarriesTheProgramsIcon) {
    const Form form(QStringLiteral("Some_frm"), QStringLiteral("x"));
    ASSERT_FALSE(form.windowIcon().isNull());
    for (const QSize size : {QSize(16, 16), QSize(32, 32), QSize(256, 256)}) {
        const QImage picture = ProgramIcon().pixmap(size).toImage();
        EXPECT_EQ(picture.size(), size);
        EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0) << "the corners are free";
        EXPECT_EQ(picture.pixelColor(size.width() / 2, size.height() * 3 / 4).alpha(), 255);
    }
}

TEST(Look, ButtonsThatKeepOrTakeAwayAreKnownByTheirCaption) {
    using enum ButtonWeight;
    struct Case {
        const char16_t* caption;
        ButtonWeight weight;
    };
    for (const Case& each : {Case{u"保存", Keeps}, Case{u"入金保存", Keeps}, Case{u"OK", Keeps},
                             Case{u"削除", Removes}, Case{u"指定得意先削除", Removes},
                             Case{u"画面クリア", Plain}, Case{u"←", Plain}, Case{u"", Plain}}) {
        const CommandButton button(QString::fromUtf16(each.caption));
        EXPECT_EQ(button.weight(), each.weight) << button.text().toStdString();
    }
}

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
