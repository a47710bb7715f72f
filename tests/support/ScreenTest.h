#pragma once

#include <gmock/gmock.h>

#include <QString>
#include <ostream>

#include "clerk/Clerk.h"

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE

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
