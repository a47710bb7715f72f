#include "store/TextToField.h"

#include <gtest/gtest.h>

#include "platform/runtime/Calendar.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

TEST(TextToField, ByKind) {
    struct Case {
        FieldType type;
        int size;
        const char16_t* text;
        Variant value;
    };
    const Case cases[] = {
        {FieldType::Currency, 8, u"¥1,200.5", Currency::FromText("1200.5")},
        {FieldType::Currency, 8, u"", Currency(0)},
        {FieldType::Long, 4, u"70000", std::int32_t{70000}},
        {FieldType::Integer, 2, u"12", std::int16_t{12}},
        {FieldType::Text, 4, u"日本語", "日本"},
        {FieldType::Text, 3, u"日本", "日"},
        {FieldType::Text, 0, u"日本語", "日本語"},
        {FieldType::Text, 4, u"", " "},
        {FieldType::Memo, 0, u"", " "},
        {FieldType::Date, 8, u"2011/3/25", DateSerial(2011, 3, 25)},
        {FieldType::Boolean, 1, u"True", "True"},
        {FieldType::Double, 8, u"1.5", Variant()},
    };
    for (const Case& c : cases) {
        Variant value = "before";
        TextToField(value, c.type, c.size, QString::fromUtf16(c.text));
        EXPECT_EQ(value, c.value) << static_cast<int>(c.type) << " "
                                  << QString::fromUtf16(c.text).toStdString();
    }
    Variant value;
    EXPECT_THROW(TextToField(value, FieldType::Integer, 2, "40000"), RuntimeError);
    EXPECT_THROW(TextToField(value, FieldType::Date, 8, "2011/2/30"), RuntimeError);
}

}  // namespace
}  // namespace akarix
