#include <QCoreApplication>

#include "admin/Command.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return akarix::admin::Run(QCoreApplication::arguments().mid(1));
}
