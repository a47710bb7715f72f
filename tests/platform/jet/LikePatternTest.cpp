#include "platform/jet/LikePattern.h"

#include <gtest/gtest.h>

#include "platform/runtime/RuntimeError.h"
#include "support/CaseFile.h"

namespace akarix {
namespace {

TEST(LikePattern, MatchesTheDialectsWildcards) {
    for (const auto& [cells, line] : ReadTable(AKARIX_TEST_DATA "/patterns.txt")) {
        EXPECT_EQ(likeMatches(cells[0], cells[1]), cells[2] == "true") << line;
    }
    EXPECT_THROW(likeMatches("a[b", QString()), RuntimeError);
    // Many stars take no more than length times length steps.
    EXPECT_FALSE(likeMatches(QString("*a").repeated(40) + u'b', QString(5000, u'a')));
}

}  // namespace
}  // namespace akarix
