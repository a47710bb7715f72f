#include <gtest/gtest.h>

#include <QApplication>

#include "clerk/Offscreen.h"
#include "platform/forms/Style.h"

int main(int argc, char** argv) {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform == "offscreen") akarix::GoOffscreen();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    akarix::ApplyStyle(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
