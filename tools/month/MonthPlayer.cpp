#include "month/MonthPlayer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <algorithm>
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
#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/DateSerial.h"
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

constexpr int monthEnd = 31;

constexpr std::array<RoadStep, 33> road{{
    {u"起動", 1, startProgram},
    {u"料金表", 1, keepTariff},
    {u"地区マスター", 1, keepRoute},
    {u"得意先マスター", 1, keepCustomer},
    {u"商品マスター", 1, keepGoods},
    {u"その他情報とリース料金", 1, keepSettings},
    {u"委託者マスター", 1, keepConsignors},
    {u"支店を三桁にする", 1, shortenBranch},
    {u"口座振替明細書", 1, printStatements},
    {u"口座振替の依頼", 1, writeRequest},
    {u"口座振替の結果", 8, readResult},
    {u"検針シートを開く", 25, openSheet},
    {u"検針値の入力", 25, typeReadings},
    {u"検針の保存", 25, saveSheet},
    {u"売上伝票の入力", 28, typeSlips},
    {u"入金の入力", 28, typePayments},
    {u"請求処理", monthEnd, runBilling},
    {u"遅れた売上伝票", monthEnd, typeLateSlip},
    {u"リースの終わり", monthEnd, endLease},
    {u"二度目の請求処理", monthEnd, runBillingAgain},
    {u"一覧表の表示", monthEnd, showList},
    {u"一覧表の印刷", monthEnd, printList},
    {u"一覧表の書き出し", monthEnd, exportList},
    {u"印刷プレビュー", monthEnd, previewList},
    {u"請求書の表示", monthEnd, showInvoices},
    {u"請求書の印刷", monthEnd, printInvoices},
    {u"請求書の作図", monthEnd, drawInvoice},
    {u"消費先台帳の表示", monthEnd, showAccount},
    {u"消費先台帳の書き出し", monthEnd, exportAccount},
    {u"台帳から伝票を開く", monthEnd, openAccountSlip},
    {u"得意先残の表示", monthEnd, showBalances},
    {u"一覧とエラー", monthEnd, showLookups},
    {u"終了", monthEnd, endProgram},
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

/// The screens propose the present day, and a debit disk has no year of its own: a month played later, or
/// before its end, has to stand on its days.
void turnTo(const Options& options, int day) {
    const Date last = DateSerial(options.year, options.month + 1, 0);
    SetClock(DateSerial(options.year, options.month, std::min(day, Day(last))));
}

/// Plays the whole road from inside the application's events, where the program lives; the menu's end is
/// the events' end. What the road raises comes out here.
void walk(Desk& desk, StepTimes& times) {
    std::exception_ptr failure;
    QTimer::singleShot(0, qApp, [&] {
        try {
            for (const RoadStep& step : road) {
                turnTo(desk.options, step.day);
                times.run(QString::fromUtf16(step.name), [&] { playStep(step, desk); });
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
    Figures figures = readFigures(*gDb, options.year, options.month);
    figures.invoicePages = desk.invoicePages;
    figures.debit = totalsOf(desk.typed.debits);
    figures.hardCases = hardCasesOf(*gDb, desk);
    const QString summary = summaryText(options.year, options.month, figures, times);
    writeText(folder.path(QStringLiteral("summary.txt")), summary);
    return summary;
}

}  // namespace akarix::month
