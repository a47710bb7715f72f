#include "admin/Command.h"
#include "admin/MonthArgument.h"
#include "admin/NewFile.h"
#include "admin/Terminal.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "sample/OpenStore.h"
#include "sample/SampleDealer.h"
#include "store/CreateDatabase.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
    "使い方: akarix-admin sample [ファイル] [--customers 件数] [--months 月数] [--until 年/月] [--force]\n\n"
    "見本の販売店のデータベース（既定 Akarix.MDB）を作ります。得意先、検針、売上、入金、毎月の\n"
    "請求処理まで済んだ状態になります。同じ指定なら中身はいつも同じです。\n\n"
    "  --customers 件数   得意先の数、1 から 32000（既定 300）\n"
    "  --months 月数      何か月分作るか、1 から 120（既定 14）\n"
    "  --until 年/月      最後の月、例 2011/3（既定は先月）\n"
    "  --force            既にあるファイルを作り直す（中のデータは失われます）\n";

void UntilLastMonth(sample::Wish& wish) {
    const BillingMonth last = BillingMonth::Of(Today()).plus(-1);
    wish.untilYear = last.nendo;
    wish.untilMonth = last.getudo;
}

sample::Wish ReadWish(const QCommandLineParser& given) {
    constexpr int firstYear = 1970;  // leaves room for the months before it
    sample::Wish wish;
    UntilLastMonth(wish);
    if (given.isSet(u"until"_s)) {
        const auto until = ReadMonth(given.value(u"until"_s));
        if (!until || until->nendo < firstYear) throw Misuse();
        wish.untilYear = until->nendo;
        wish.untilMonth = until->getudo;
    }
    const auto customers = ReadCount(given.value(u"customers"_s), sample::kMostCustomers);
    const auto months = ReadCount(given.value(u"months"_s), sample::kMostMonths);
    if (!customers || !months) throw Misuse();
    wish.customers = *customers;
    wish.months = *months;
    return wish;
}

int MakeSample(const QCommandLineParser& given) {
    const sample::Wish wish = ReadWish(given);
    const QString path = MakeStore(given, [&wish](const QString& working) {
        CreateDelivered(working);
        const sample::OpenStore store(working);
        ProgressLine line;
        sample::FillSampleDealer(wish, [&line](const QString& text) { line.show(text); });
    });
    Tell(u"%1 を作りました: 得意先 %2 件、%3 か月（%4年%5月まで）\n"_s.arg(path)
             .arg(wish.customers)
             .arg(wish.months)
             .arg(wish.untilYear)
             .arg(wish.untilMonth));
    return Done;
}

}  // namespace

Command SampleCommand() {
    return {u"sample"_s,
            u"見本の販売店のデータベースを作る"_s,
            kHelpText,
            {{u"customers"_s, {}, u"n"_s, u"300"_s},
             {u"months"_s, {}, u"n"_s, u"14"_s},
             {u"until"_s, {}, u"month"_s},
             QCommandLineOption(u"force"_s)},
            {0, 1},
            MakeSample};
}

}  // namespace akarix::admin
