#include "month/Options.h"

#include <QCommandLineParser>

#include "admin/Command.h"
#include "admin/MonthArgument.h"
#include "month/Trade.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "sample/SampleDealer.h"

namespace akarix::month {

std::optional<Options> ReadOptions(const QStringList& arguments) {
    Options options;
    QCommandLineParser parser;
    parser.addOptions({{u"customers"_s, {}, u"n"_s, QString::number(options.customers)},
                       {u"out"_s, {}, u"folder"_s, options.out},
                       {u"scale"_s, {}, u"n"_s, u"1"_s},
                       {u"month"_s, {}, u"month"_s, admin::MonthText(BillingMonth::Of(Today()))},
                       {u"templates"_s, {}, u"folder"_s},
                       {{u"h"_s, u"help"_s}, {}}});
    if (!parser.parse(QStringList(QString()) + arguments) || !parser.positionalArguments().isEmpty())
        return std::nullopt;

    constexpr double leastScale = 0.5;
    constexpr double mostScale = 4;
    // The reading sheet takes no year before, and the sample dealer's months lie before the one played.
    constexpr int firstYear = 2000;
    bool isNumber = false;
    const auto customers = admin::ReadCount(parser.value(u"customers"_s), sample::kMostCustomers);
    const auto month = admin::ReadMonth(parser.value(u"month"_s));
    options.scale = parser.value(u"scale"_s).toDouble(&isNumber);
    options.out = parser.value(u"out"_s);
    if (!customers || !month || month->nendo < firstYear || !isNumber || options.scale < leastScale ||
        options.scale > mostScale || options.out.isEmpty())
        return std::nullopt;
    options.customers = *customers;
    options.year = month->nendo;
    options.month = month->getudo;
    options.templates = parser.value(u"templates"_s);
    options.help = parser.isSet(u"help"_s);
    return options;
}

QString HelpText() {
    return u"使い方: akarix-month [--customers 件数] [--out フォルダ] [--month 年/月] [--scale 倍率]\n"
           "                     [--templates フォルダ]\n\n"
           "見本の販売店を作り、その一か月の仕事（口座振替、検針、売上、入金、請求処理、請求一覧表、\n"
           "請求書、消費先台帳）を実際の画面の上でキー入力によって行います。画面のない機械でも動きます。"
           "\n"
           "得意先が多いときは、"
           "売上伝票は %1 枚、入金は %2 枚までを入力します。\n\n"
           "  --customers 件数     得意先の数、1 から 32000（既定 300）\n"
           "  --out フォルダ       結果を置くフォルダ（既定 month）\n"
           "  --month 年/月        行う月、例 2011/4（既定は今月）。見本はその前の月までです\n"
           "  --scale 倍率         画面の倍率、例 1.5（既定 1）\n"
           "  --templates フォルダ 帳票の雛形（既定は Prt）\n"
           "  --help               この説明\n\n"
           "フォルダに残るもの: summary.txt、billing-list.pdf、billing-list.xlsx、invoices.pdf、\n"
           "                    script.pdf、account.xlsx、debit/、screens/、dealer/\n"
           "終了コード: 0 正常、1 台帳が再計算と違う、予期しない画面が出たなど、2 使い方の誤り\n"_s
               .arg(kMostSales)
               .arg(kMostPayments);
}

}  // namespace akarix::month
