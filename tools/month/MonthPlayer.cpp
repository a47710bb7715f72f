#include "month/MonthPlayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <array>

#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/MonthCheck.h"
#include "month/Options.h"
#include "month/Steps.h"
#include "month/Summary.h"
#include "month/WorkFolder.h"
#include "platform/runtime/RuntimeError.h"
#include "sample/OpenStore.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

struct RoadStep {
    const char16_t* name;
    void (*play)(Desk&);
};

constexpr std::array<RoadStep, 20> road{{
    {u"起動", startProgram},
    {u"料金表", keepTariff},
    {u"地区マスター", keepRoute},
    {u"得意先マスター", keepCustomer},
    {u"商品マスター", keepGoods},
    {u"検針シートを開く", openSheet},
    {u"検針値の入力", typeReadings},
    {u"検針の保存", saveSheet},
    {u"売上伝票の入力", typeSlips},
    {u"入金の入力", typePayments},
    {u"請求処理", runBilling},
    {u"一覧表の表示", showList},
    {u"一覧表の印刷", printList},
    {u"一覧表の書き出し", exportList},
    {u"印刷プレビュー", previewList},
    {u"消費先台帳の表示", showAccount},
    {u"消費先台帳の書き出し", exportAccount},
    {u"台帳から伝票を開く", openAccountSlip},
    {u"得意先残の表示", showBalances},
    {u"終了", endProgram},
}};

/// A step, and what the dialogs had to say to it.
void playStep(const RoadStep& step, Desk& desk) {
    const Clerk& clerk = desk.clerk;
    QString problem;
    try {
        step.play(desk);
    } catch (const RuntimeError& error) {
        problem = QStringLiteral("%1 %2").arg(error.number()).arg(error.description());
    } catch (const std::exception& error) {
        problem = QString::fromUtf8(error.what());
    }
    QStringList problems = clerk.complaints();
    if (!problem.isEmpty()) problems << problem;
    if (problems.isEmpty() && clerk.expectedDialogs() != 0) {
        problems << QStringLiteral("出るはずの画面が出ませんでした。");
    }
    if (problems.isEmpty()) return;
    throw Failure(QString::fromUtf16(step.name) + QStringLiteral(": ") + problems.join(u'\n'));
}

/// Plays the whole road from inside the application's events, where the program lives; the menu's end is
/// the events' end. What the road raises comes out here.
void walk(Desk& desk, StepTimes& times) {
    std::exception_ptr failure;
    QTimer::singleShot(0, qApp, [&] {
        try {
            for (const RoadStep& step : road) {
                times.run(QString::fromUtf16(step.name), [&] { playStep(step, desk); });
            }
        } catch (...) {
            failure = std::current_exception();
        }
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    desk.clerk.clearDesk();
    CloseDb();
    if (failure) std::rethrow_exception(failure);
}

/// The dealer's folder is the current one while the program is at work.
class AtDealer {
 public:
    explicit AtDealer(const WorkFolder& folder) : previous_(QDir::currentPath()) {
        QDir::setCurrent(folder.dealer());
    }
    ~AtDealer() { QDir::setCurrent(previous_); }
    AtDealer(const AtDealer&) = delete;
    AtDealer& operator=(const AtDealer&) = delete;

 private:
    QString previous_;
};

void writeText(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(text.toUtf8()) < 0) {
        throw Failure(path + QStringLiteral(" に書き込めません。"));
    }
}

}  // namespace

QString playMonth(const Options& options) {
    const WorkFolder folder(options.out);
    StepTimes times;
    times.run(QStringLiteral("販売店を作る"), [&] { folder.makeDealer(options); });

    Clerk clerk;
    Album album(folder.path(QStringLiteral("screens")));
    Desk desk{.options = options, .folder = folder, .clerk = clerk, .album = album};
    {
        const AtDealer place(folder);
        walk(desk, times);
    }

    const sample::OpenStore store(folder.database());
    times.run(QStringLiteral("再計算"), [&] { checkMonth(*gDb, options.year, options.month, desk.typed); });
    const QString summary =
        summaryText(options.year, options.month, readFigures(*gDb, options.year, options.month), times);
    writeText(folder.path(QStringLiteral("summary.txt")), summary);
    return summary;
}

}  // namespace akarix::month
