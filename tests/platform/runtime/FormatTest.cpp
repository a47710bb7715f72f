#include <gtest/gtest.h>

#include <QFile>

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/Raises.h"

namespace akarix {

namespace {

/// "12.5" is a Double; "c:", "d:" and "t:" stand before a Currency, a date and a text.
Variant ValueOf(const QString& text) {
    if (text == u"null"_s) return NullValue{};
    if (text == u"empty"_s) return {};
    if (text == u"true"_s) return true;
    if (text.startsWith(u"c:"_s)) return Currency::FromText(text.mid(2));
    if (text.startsWith(u"d:"_s)) return CDate(text.mid(2));
    if (text.startsWith(u"t:"_s)) return text.mid(2);
    return text.toDouble();
}

TEST(Format, FollowsTheTable) {
    QFile file(QStringLiteral(AKARIX_TEST_DATA "/formats.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u"# "_s)) continue;
        const QStringList parts = line.split(u'\t');
        ASSERT_GE(parts.size(), 3) << line.toStdString();
        EXPECT_EQ(Format(ValueOf(parts[0]), parts[1]).toStdString(), parts[2].toStdString())
            << line.toStdString();
    }
}

TEST(Format, ANumberBeyondTheDatesOverflowsUnderADateMask) {
    EXPECT_EQ(Raised([] { return Format(20110325, u"yyyy/mm/dd"_s); }), 6);
    EXPECT_EQ(Raised([] { return Format("20110325", u"yyyy/mm/dd"_s); }), 6);
}

}  // namespace

}  // namespace akarix
