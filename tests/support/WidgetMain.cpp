#include <gtest/gtest.h>

#include <QApplication>

#include "clerk/Offscreen.h"
#include "platform/forms/Style.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    akarix::HushOffscreen();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    akarix::ApplyStyle(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
