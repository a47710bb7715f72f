#include "month/Options.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include "month/Trade.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"
#include "sample/SampleDealer.h"

namespace akarix::month {

namespace {

constexpr double kLeastScale = 0.5;
constexpr double kMostScale = 4;

bool ReadCustomers(const QString& text, Options& options) {
    bool isNumber = false;
    options.customers = text.toInt(&isNumber);
    return isNumber && options.customers >= 1 && options.customers <= sample::kMostCustomers;
}

bool ReadScale(const QString& text, Options& options) {
    bool isNumber = false;
    options.scale = text.toDouble(&isNumber);
    return isNumber && options.scale >= kLeastScale && options.scale <= kMostScale;
}

// The reading sheet takes no year before 2000, and the sample dealer's months lie before the one played.
bool ReadMonth(const QString& text, Options& options) {
    static const QRegularExpression form(u"^([0-9]{4})/([0-9]{1,2})$"_s);
    const QRegularExpressionMatch match = form.match(text);
    options.year = match.captured(1).toInt();
    options.month = match.captured(2).toInt();
    return options.year >= 2000 && options.month >= 1 && options.month <= 12;
}

}  // namespace

std::optional<Options> ReadOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    const auto valued = [&parser](const QString& name) {
        parser.addOption(QCommandLineOption(name, QString(), name));
    };
    const QString customers = u"customers"_s;
    const QString out = u"out"_s;
    const QString scale = u"scale"_s;
    const QString monthName = u"month"_s;
    const QString templates = u"templates"_s;
    for (const QString& name : {customers, out, scale, monthName, templates})
        valued(name);
    parser.addOption(QCommandLineOption(QStringList{u"h"_s, u"help"_s}));
    if (!parser.parse(QStringList(QString()) + arguments) || !parser.positionalArguments().isEmpty())
        return std::nullopt;

    Options options;
    options.help = parser.isSet(u"help"_s);
    options.year = Year(Today());
    options.month = Month(Today());
    if (parser.isSet(customers) && !ReadCustomers(parser.value(customers), options)) return std::nullopt;
    if (parser.isSet(scale) && !ReadScale(parser.value(scale), options)) return std::nullopt;
    if (parser.isSet(monthName) && !ReadMonth(parser.value(monthName), options)) return std::nullopt;
    if (parser.isSet(out)) options.out = parser.value(out);
    if (options.out.isEmpty()) return std::nullopt;
    options.templates = parser.value(templates);
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
