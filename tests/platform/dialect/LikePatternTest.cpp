#include "platform/dialect/LikePattern.h"

#include <gtest/gtest.h>

#include "platform/runtime/RuntimeError.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

TEST(LikePattern, MatchesTheDialectsWildcards) {
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/patterns.txt"))
        EXPECT_EQ(LikeMatches(cells[0], cells[1]), cells[2] == "true") << line;
    EXPECT_THROW(LikeMatches("a[b", QString()), RuntimeError);
    // Many stars take no more than length times length steps.
    EXPECT_FALSE(LikeMatches(QString("*a").repeated(40) + u'b', QString(5000, u'a')));
}

}  // namespace
}  // namespace akarix
