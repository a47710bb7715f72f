#include <QFileInfo>
#include <algorithm>

#include "admin/CheckReport.h"
#include "admin/Command.h"
#include "admin/FileClaim.h"
#include "admin/FileReport.h"
#include "admin/MonthArgument.h"
#include "admin/Terminal.h"
#include "platform/dao/Database.h"
#include "platform/runtime/Literals.h"
#include "sample/OpenStore.h"
#include "store/FieldValue.h"
#include "store/dbAccess.h"
#include "values/Text.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
    "使い方: akarix-admin check [ファイル] [--since 年/月]\n\n"
    "データベース（既定 Akarix.MDB）を調べます。中身は変えません。\n"
    "  1. ファイルをページごとに確かめます。\n"
    "  2. 台帳のすべての行を、検針、売上、入金と前の月の行から計算し直し、違うところを理由とともに\n"
    "     並べます。\n"
    "  3. 請求処理をした月のリースの伝票を、得意先の印（ACU・警報機）と前後の月に合わせます: 一人に一枚、\n"
    "     行は印のとおり、抜けも重なりもないこと。印を変えたあとは、請求処理をやり直すまで並びます。\n"
    "  4. 人が見たほうがよい検針を並べます: 使用量がマイナス、使用量があるのに料金が 0、指針と\n"
    "     使用量が合わない、前回が最後に読んだ値と違う、読まないまま請求した、その得意先の前の一年から\n"
    "     かけ離れている。使用量 0 は空き家と見て挙げません。\n\n"
    "  --since 年/月   この月からあとのものだけを並べる、例 2011/4\n"
    "                  （既定: 台帳とリースは全部、検針は最後の一年）\n\n"
    "手で決めた繰越は並べますが、誤りには数えません。台帳の画面で一人の分だけ消したはじめの月は、件数と\n"
    "得意先だけを示します。\n"
    "終了コード: 0 異常なし、1 見つかったものがある、2 読めない（または使い方の誤り）\n";

CustomerNames ReadNames(Database& db) {
    CustomerNames names;
    Recordset customers = db.OpenRecordset(u"SELECT Code,Namae FROM Deal"_s);
    for (; !customers.Eof(); customers.MoveNext())
        names[LongOf(customers[u"Code"_s])] = NullToEmpty(customers[u"Namae"_s]);
    return names;
}

int CheckFigures(const QString& path, BillingMonth since) {
    const sample::OpenStore store(path, true);
    const CustomerNames names = ReadNames(*gDb);
    LedgerProof proof;
    {
        ProgressLine line;
        proof = ProveLedger(*gDb, [&line](BillingMonth month) {
            line.show(u"%1年%2月"_s.arg(month.nendo).arg(month.getudo));
        });
    }
    std::erase_if(proof.findings,
                  [since](const LedgerFinding& finding) { return finding.difference.month < since; });
    Tell(LedgerReport(proof, names));

    const std::vector<LeaseFinding> leases = CheckLeases(*gDb, since);
    Tell(LeaseReport(leases, names));

    const BillingMonth none;
    const BillingMonth from = since != none ? since : LastYearOfReadings(*gDb);
    const auto doubtful = from != none ? CheckReadings(*gDb, from) : std::vector<DoubtfulReading>();
    Tell(ReadingReport(doubtful, from, names));

    const bool isRight = std::all_of(proof.findings.begin(), proof.findings.end(),
                                     [](const LedgerFinding& f) { return f.cause == Cause::HandSet; });
    return isRight && leases.empty() && doubtful.empty() ? Clean : Found;
}

int CheckFile(const QString& path, BillingMonth since) {
    const QString holder = HolderOf(path);
    if (!holder.isEmpty())
        Tell(holder + u"\n  仕事の途中なら、台帳が合わないように見えることがあります。\n"_s);
    const FileState state = StateOf(path);
    Tell(path + u": "_s + (state.sound() ? u"%1 ページ、すべて正常"_s.arg(state.check.pages) : state.faults) +
         u'\n');
    if (!state.check.opens) {
        Tell(
            u"  台帳は調べられません。控えから戻すには akarix-admin restore。Akarix を起動すると、\n"
            "  読めるページだけで作り直します。\n"_s);
        return Unreadable;
    }
    return std::max<int>(CheckFigures(path, since), state.sound() ? Clean : Found);
}

int Check(const QCommandLineParser& given) {
    const auto since = ReadMonth(given.value(u"since"_s));
    if (given.isSet(u"since"_s) && !since) throw Misuse();
    const QString path = given.positionalArguments().value(0, DatabaseName());
    if (!QFileInfo(path).isFile()) throw Stop{Unreadable, u"ファイルがありません: %1"_s.arg(path)};
    return CheckFile(path, since.value_or(BillingMonth()));
}

}  // namespace

Command CheckCommand() {
    return {u"check"_s, u"ファイルと台帳を調べる"_s, kHelpText, {{u"since"_s, {}, u"month"_s}}, {0, 1}, Check,
            Unreadable};
}

}  // namespace akarix::admin
