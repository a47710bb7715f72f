#include <gtest/gtest.h>

#include <QApplication>

#include "platform/forms/Style.h"

namespace {

QtMessageHandler standardHandler;

/// Without a display there is nothing to raise or to resize; Qt says so for every window shown.
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(u"This plugin does not support")) standardHandler(type, context, text);
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    standardHandler = qInstallMessageHandler(handleMessage);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    akarix::ApplyStyle(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
