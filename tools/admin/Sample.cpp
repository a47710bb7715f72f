#include "admin/Sample.h"

#include <QCommandLineParser>
#include <optional>

#include "admin/FileClaim.h"
#include "admin/MonthArgument.h"
#include "admin/NewFile.h"
#include "admin/Terminal.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "sample/OpenStore.h"
#include "sample/SampleDealer.h"
#include "store/CreateDatabase.h"
#include "store/dbAccess.h"

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

/// A number of the command line within its bounds.
std::optional<int> ReadCount(const QString& text, int most) {
    bool isNumber = false;
    const int count = text.toInt(&isNumber);
    return isNumber && count >= 1 && count <= most ? std::optional(count) : std::nullopt;
}

bool ReadUntil(const QString& text, sample::Wish& wish) {
    constexpr int firstYear = 1970;  // leaves room for the months before it
    const auto until = ReadMonth(text);
    if (!until || until->year < firstYear) return false;
    wish.untilYear = until->year;
    wish.untilMonth = until->month;
    return true;
}

void UntilLastMonth(sample::Wish& wish) {
    const Date today = Today();
    const int index = Year(today) * 12 + Month(today) - 2;
    wish.untilYear = index / 12;
    wish.untilMonth = index % 12 + 1;
}

std::optional<sample::Wish> ReadWish(const QCommandLineParser& parser) {
    sample::Wish wish;
    UntilLastMonth(wish);
    if (parser.isSet(u"until"_s) && !ReadUntil(parser.value(u"until"_s), wish)) return std::nullopt;
    const auto customers = ReadCount(parser.value(u"customers"_s), sample::kMostCustomers);
    const auto months = ReadCount(parser.value(u"months"_s), sample::kMostMonths);
    if (!customers || !months) return std::nullopt;
    wish.customers = *customers;
    wish.months = *months;
    return wish;
}

int MakeSample(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOptions({
        QCommandLineOption(u"customers"_s, QString(), u"n"_s, u"300"_s),
        QCommandLineOption(u"months"_s, QString(), u"n"_s, u"14"_s),
        QCommandLineOption(u"until"_s, QString(), u"month"_s),
        QCommandLineOption(u"force"_s),
    });
    const bool understood = parser.parse(QStringList(QString()) + arguments);
    const std::optional<sample::Wish> wish = understood ? ReadWish(parser) : std::nullopt;
    if (!wish || parser.positionalArguments().size() > 1) {
        TellWrongUse(u"sample"_s);
        return WrongUse;
    }
    const QString path = parser.positionalArguments().value(0, DatabaseName());
    const FileClaim claim(path);
    const QString reason = Refusal(path, parser.isSet(u"force"_s), claim);
    if (!reason.isEmpty()) {
        TellError(reason + u'\n');
        return Failed;
    }
    ReplaceFile(path, [&wish](const QString& working) {
        CreateDelivered(working);
        const sample::OpenStore store(working);
        ProgressLine line;
        sample::FillSampleDealer(*wish, [&line](const QString& text) { line.show(text); });
    });
    Tell(u"%1 を作りました: 得意先 %2 件、%3 か月（%4年%5月まで）\n"_s.arg(path)
             .arg(wish->customers)
             .arg(wish->months)
             .arg(wish->untilYear)
             .arg(wish->untilMonth));
    return Done;
}

}  // namespace

Command SampleCommand() {
    return {u"sample"_s, u"見本の販売店のデータベースを作る"_s, QString::fromUtf8(kHelpText), MakeSample};
}

}  // namespace akarix::admin
