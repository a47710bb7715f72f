#include "values/Text.h"

#include "support/CaseFile.h"

namespace akarix {
namespace {

TEST(Text, CutsByBytesAndLosesASplitCharacter) {
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/cut.txt"))
        EXPECT_EQ(CutBytes(cells[0], cells[1].toInt()), cells.value(2)) << line;
}

TEST(Text, NullAndBlank) {
    EXPECT_EQ(NullToEmpty(Variant::Null()), QString());
    EXPECT_EQ(NullToEmpty(" あ "), "あ");
    EXPECT_EQ(NullToEmpty("　 あ　い\t　"), "あ　い\t");
    EXPECT_EQ(NullToZero(Variant::Null()), Variant(std::int16_t{0}));
    EXPECT_EQ(EmptyToBlank({}), " ");
    EXPECT_FALSE(HasText(Variant::Null()));
    EXPECT_FALSE(HasText("　"));
    EXPECT_TRUE(HasText(" a"));
}

}  // namespace
}  // namespace akarix
