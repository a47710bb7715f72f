#include "clerk/Offscreen.h"

#include <QByteArray>
#include <QString>

namespace akarix {

namespace {

QtMessageHandler standardHandler;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    for (const char16_t* known :
         {u"This plugin does not support", u"QStandardPaths: XDG_RUNTIME_DIR not set"}) {
        if (text.startsWith(QStringView(known))) return;
    }
    standardHandler(type, context, text);
}

}  // namespace

void HushOffscreen() {
    if (standardHandler == nullptr) standardHandler = qInstallMessageHandler(handleMessage);
}

void GoOffscreenWithoutDisplay() {
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(name)) return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    HushOffscreen();
}

}  // namespace akarix
