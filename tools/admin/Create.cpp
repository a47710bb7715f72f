#include "admin/Command.h"
#include "admin/NewFile.h"
#include "admin/Terminal.h"
#include "platform/runtime/Literals.h"
#include "store/CreateDatabase.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
    "使い方: akarix-admin create [ファイル] [--force]\n\n"
    "空のデータベース（既定 Akarix.MDB）を作ります。表、設定、入金区分だけが入っています。\n\n"
    "  --force   既にあるファイルを作り直す（中のデータは失われます）\n";

int Create(const QCommandLineParser& given) {
    Tell(u"%1 を作りました。\n"_s.arg(MakeStore(given, CreateDelivered)));
    return Done;
}

}  // namespace

Command CreateCommand() {
    return {u"create"_s, u"空のデータベースを作る"_s, kHelpText, {QCommandLineOption(u"force"_s)}, {0, 1},
            Create};
}

}  // namespace akarix::admin
