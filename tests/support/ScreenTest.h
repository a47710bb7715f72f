#pragma once

#include <gmock/gmock.h>

#include "clerk/Clerk.h"
#include "support/PrintQString.h"

namespace akarix {

/// A test with somebody at the desk. It starts and ends with an empty desk, and fails on whatever the clerk
/// had to complain about and on answers nobody asked for.
class ScreenTest : public testing::Test {
 protected:
    void TearDown() override {
        EXPECT_THAT(clerk.complaints(), testing::IsEmpty());
        EXPECT_EQ(clerk.expectedDialogs(), 0);
        clerk.clearDesk();
    }

    Clerk clerk;
};

}  // namespace akarix
