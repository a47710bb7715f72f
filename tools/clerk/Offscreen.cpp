#include "clerk/Offscreen.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryFile>

namespace akarix {

namespace {

// In pixels of the program: 1366x768 at 125 % are 1093x614 of them.
constexpr char kScreens[] = R"({"screens": [
    {"name": "desk", "x": 0, "y": 0, "width": 2880, "height": 1620, "logicalDpi": 96},
    {"name": "small 1024x768", "x": 2880, "y": 0, "width": 1024, "height": 768, "logicalDpi": 96},
    {"name": "small 1366x768", "x": 3904, "y": 0, "width": 1093, "height": 614, "logicalDpi": 96}
]})";

QtMessageHandler standardHandler;

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    for (const char16_t* known :
         {u"This plugin does not support", u"QStandardPaths: XDG_RUNTIME_DIR not set"})
        if (text.startsWith(QStringView(known))) return;
    standardHandler(type, context, text);
}

}  // namespace

void GoOffscreen() {
    static QTemporaryFile screens;  // read when the application is made
    QByteArray platform = "offscreen";
    if (screens.open() && screens.write(kScreens) > 0 && screens.flush())
        platform += ":configfile=" + QFile::encodeName(screens.fileName());
    qputenv("QT_QPA_PLATFORM", platform);
    if (standardHandler == nullptr) standardHandler = qInstallMessageHandler(HandleMessage);
}

void GoOffscreenWithoutDisplay() {
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (!qEnvironmentVariableIsEmpty(name)) return;
    GoOffscreen();
}

}  // namespace akarix
