#include <QApplication>
#include <QTemporaryDir>

#include "admin/Terminal.h"
#include "clerk/Offscreen.h"
#include "month/MonthPlayer.h"
#include "month/Options.h"
#include "platform/forms/SingleInstance.h"
#include "platform/forms/Style.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUse = 2 };

int Play(const akarix::month::Options& options) {
    try {
        akarix::admin::Tell(akarix::month::PlayMonth(options));
        return Done;
    } catch (const akarix::RuntimeError& error) {
        akarix::admin::TellError(u"%1 %2\n"_s.arg(error.number()).arg(error.description()));
    } catch (const std::exception& error) {
        akarix::admin::TellError(QString::fromUtf8(error.what()) + u'\n');
    }
    return Failed;
}

}  // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const auto options = akarix::month::ReadOptions(arguments);
    if (!options || options->help) {
        (options ? akarix::admin::Tell : akarix::admin::TellError)(akarix::month::HelpText());
        return options ? Done : WrongUse;
    }
    // The scale is read when the application is made, so it is set before.
    if (options->scale != 1) qputenv("QT_SCALE_FACTOR", QByteArray::number(options->scale));
    // The program is one to a machine. The month is played in a folder of its own, so it neither disturbs one
    // at work nor waits for it.
    static const QTemporaryDir guard;  // outlives the mark in it
    akarix::SingleInstance::KeepIn(guard.path());
    akarix::GoOffscreenWithoutDisplay();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    akarix::ApplyStyle(application);
    return Play(*options);
}
