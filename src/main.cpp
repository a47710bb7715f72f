#include <QApplication>

#include "platform/forms/Style.h"
#include "shell/main_menu.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);  // the menu alone ends the program
    akarix::ApplyStyle(application);
    return akarix::main_menu::Start() ? QApplication::exec() : 0;
}
