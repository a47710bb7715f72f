#include "month/MonthPlayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "month/Desk.h"
#include "month/MonthCheck.h"
#include "month/Steps.h"
#include "month/Summary.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "sample/OpenStore.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

struct RoadStep {
    const char16_t* name;
    int day;  ///< of the month, on which the clerk comes to it
    void (*play)(Desk&);
};

constexpr int kMonthEnd = 31;

constexpr RoadStep kRoad[] = {
    {u"起動", 1, StartProgram},
    {u"料金表", 1, KeepTariff},
    {u"地区マスター", 1, KeepRoute},
    {u"得意先マスター", 1, KeepCustomer},
    {u"商品マスター", 1, KeepGoods},
    {u"その他情報とリース料金", 1, KeepSettings},
    {u"委託者マスター", 1, KeepConsignors},
    {u"支店を三桁にする", 1, ShortenBranch},
    {u"口座振替明細書", 1, PrintStatements},
    {u"口座振替の依頼", 1, WriteRequest},
    {u"口座振替の結果", 8, ReadResult},
    {u"検針シートを開く", 25, OpenSheet},
    {u"検針値の入力", 25, TypeReadings},
    {u"検針の保存", 25, SaveSheet},
    {u"売上伝票の入力", 28, TypeSlips},
    {u"入金の入力", 28, TypePayments},
    {u"請求処理", kMonthEnd, RunBilling},
    {u"遅れた売上伝票", kMonthEnd, TypeLateSlip},
    {u"リースの終わり", kMonthEnd, EndLease},
    {u"二度目の請求処理", kMonthEnd, RunBillingAgain},
    {u"一覧表の表示", kMonthEnd, ShowList},
    {u"一覧表の印刷", kMonthEnd, PrintList},
    {u"一覧表の書き出し", kMonthEnd, ExportList},
    {u"印刷プレビュー", kMonthEnd, PreviewList},
    {u"請求書の表示", kMonthEnd, ShowInvoices},
    {u"請求書の印刷", kMonthEnd, PrintInvoices},
    {u"請求書の作図", kMonthEnd, DrawInvoice},
    {u"消費先台帳の表示", kMonthEnd, ShowAccount},
    {u"消費先台帳の書き出し", kMonthEnd, ExportAccount},
    {u"台帳から伝票を開く", kMonthEnd, OpenAccountSlip},
    {u"得意先残の表示", kMonthEnd, ShowBalances},
    {u"一覧とエラー", kMonthEnd, ShowLookups},
    {u"終了", kMonthEnd, EndProgram},
};

/// A step, and what the dialogs had to say to it.
void PlayStep(const RoadStep& step, Desk& desk) {
    const Clerk& clerk = desk.clerk;
    QString problem;
    try {
        step.play(desk);
    } catch (const RuntimeError& error) {
        problem = u"%1 %2"_s.arg(error.number()).arg(error.description());
    } catch (const std::exception& error) {
        problem = QString::fromUtf8(error.what());
    }
    QStringList problems = clerk.complaints();
    if (!problem.isEmpty()) problems << problem;
    if (problems.isEmpty() && clerk.expectedDialogs() != 0) problems << u"出るはずの画面が出ませんでした。"_s;
    if (problems.isEmpty()) return;
    throw Failure(QString::fromUtf16(step.name) + u": "_s + problems.join(u'\n'));
}

/// The screens propose the present day, and a debit disk has no year of its own: a month played later, or
/// before its end, has to stand on its days.
void TurnTo(const Options& options, int day) {
    const Date last = DateSerial(options.year, options.month + 1, 0);
    SetClock(DateSerial(options.year, options.month, std::min(day, Day(last))));
}

using StepTimes = std::vector<StepTime>;

void Timed(StepTimes& times, const QString& name, const std::function<void()>& step) {
    QElapsedTimer clock;
    clock.start();
    step();
    times.push_back({name, static_cast<double>(clock.nsecsElapsed()) / 1e9});
}

/// Plays the whole road from inside the application's events, where the program lives; the menu's end is
/// the events' end. What the road raises comes out here.
void WalkMonth(Desk& desk, StepTimes& times) {
    std::exception_ptr failure;
    QTimer::singleShot(0, qApp, [&] {
        try {
            for (const RoadStep& step : kRoad) {
                TurnTo(desk.options, step.day);
                Timed(times, QString::fromUtf16(step.name), [&] { PlayStep(step, desk); });
            }
        } catch (...) {
            failure = std::current_exception();
        }
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    SetClock(Date());
    desk.clerk.clearDesk();
    CloseDb();
    if (failure) std::rethrow_exception(failure);
}

}  // namespace

QString PlayMonth(const Options& options) {
    const WorkFolder folder(options.out);
    StepTimes times;
    Timed(times, u"販売店を作る"_s, [&] { folder.makeDealer(options); });

    Clerk clerk;
    Album album(folder.path(u"screens"_s));
    Desk desk{.options = options, .folder = folder, .clerk = clerk, .album = album};
    const QString here = QDir::currentPath();
    QDir::setCurrent(folder.dealer());
    const auto back = qScopeGuard([&here] { QDir::setCurrent(here); });
    WalkMonth(desk, times);

    const sample::OpenStore store(folder.database());
    Timed(times, u"再計算"_s, [&] { CheckMonth(*gDb, options.year, options.month, desk.typed); });
    const QString summary = SummaryText(*gDb, desk, times);
    QFile file(folder.path(u"summary.txt"_s));
    if (!file.open(QFile::WriteOnly) || file.write(summary.toUtf8()) < 0)
        throw Failure(file.fileName() + u" に書き込めません。"_s);
    return summary;
}

}  // namespace akarix::month
