#include "platform/runtime/RuntimeError.h"

#include <gtest/gtest.h>

namespace akarix {

namespace {

TEST(RuntimeError, KnowsTheTextOfEveryNumberThatIsRaised) {
    const QString general = ErrorText(999);
    EXPECT_FALSE(general.isEmpty());
    for (int number :
         {5,    6,    7,    9,    10,   11,   13,   14,   28,   48,   51,   52,   53,   54,   55,   57,
          58,   59,   61,   62,   63,   67,   68,   70,   71,   74,   75,   76,   91,   92,   93,   94,
          321,  340,  381,  424,  438,  482,  3020, 3021, 3022, 3024, 3031, 3043, 3051, 3061, 3075, 3078,
          3163, 3200, 3204, 3265, 3314, 3315, 3343, 3346, 3356, 3420, 3421, 3464, 32755}) {
        EXPECT_NE(ErrorText(number), general) << number;
    }
    EXPECT_EQ(ErrorText(1004), general);
}

TEST(RuntimeError, TellsItsTextToWhomeverCatchesIt) {
    EXPECT_EQ(RuntimeError(6).description(), ErrorText(6));
    EXPECT_STREQ(RuntimeError(3265, QStringLiteral("項目がありません。")).what(), "3265: 項目がありません。");
}

}  // namespace

}  // namespace akarix
