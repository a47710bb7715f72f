// From the start of the process to the first painting of the login prompt, on the file of 300 customers and
// 14 months. Loading, the building of the application, the splash's own drawing, opening, proving and
// migrating the file and reading the settings are in; the second for which the splash stands is not.

#include <QApplication>
#include <QProcess>
#include <QTimer>

#include "DealerFiles.h"
#include "Measure.h"
#include "platform/forms/Form.h"
#include "platform/forms/SingleInstance.h"
#include "platform/forms/Style.h"
#include "shell/main_menu.h"

namespace akarix::bench {
namespace {

constexpr int kCustomers = 300;
constexpr int kMonths = 14;
constexpr int kRuns = 9;

/// Sends the splash away as soon as it has been seen and stops the watch at the prompt.
class Watch : public QObject {
 public:
    explicit Watch(Clock::time_point start) : start_(start) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            auto* form = qobject_cast<Form*>(static_cast<QWidget*>(watched)->window());
            const QString name = form != nullptr ? form->objectName() : QString();
            if (name == u"Opening_frm" && !splashSeen_) {
                splashSeen_ = true;
                QTimer::singleShot(0, form, &Form::Unload);
            } else if (name == u"Request_frm") {
                QTimer::singleShot(0, this, [this] {
                    std::printf("%.3f %.3f\n", MillisecondsSince(start_), ProcessorMilliseconds());
                    std::fflush(stdout);
                    std::_Exit(0);
                });
            }
        }
        return QObject::eventFilter(watched, event);
    }

 private:
    Clock::time_point start_;
    bool splashSeen_ = false;
};

int StartProgram(int argc, char** argv) {
    const Clock::time_point start{Clock::duration(std::atoll(argv[1]))};
    QApplication application(argc, argv);
    ApplyStyle(application);
    // A program running at the desk is none of its business.
    SingleInstance::KeepIn(QDir::currentPath());
    const Watch watch(start);
    return main_menu::Start() ? QApplication::exec() : 1;
}

int Run(const QString& program) {
    DealerFiles files(kCustomers, kMonths);
    files.copy("Akarix");
    std::vector<Time> starts;
    for (int i = 0; i < kRuns; ++i) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(program, {QString::number(Clock::now().time_since_epoch().count())});
        if (!process.waitForFinished() || process.exitCode() != 0) return 1;
        const QList<QByteArray> told = process.readAllStandardOutput().split(' ');
        starts.push_back({told.value(0).toDouble(), told.value(1).trimmed().toDouble()});
    }
    PrintHead();
    PrintRow("process start to login prompt, 300 customers", Median(starts), std::nullopt, Under(300));
    return 0;
}

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 1) return akarix::bench::StartProgram(argc, argv);
    const QCoreApplication application(argc, argv);
    return akarix::bench::Run(QCoreApplication::applicationFilePath());
}
