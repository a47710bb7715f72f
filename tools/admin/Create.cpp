#include "admin/Create.h"

#include <QCommandLineParser>

#include "admin/FileClaim.h"
#include "admin/NewFile.h"
#include "admin/Terminal.h"
#include "platform/runtime/Literals.h"
#include "store/CreateDatabase.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
    "使い方: akarix-admin create [ファイル] [--force]\n\n"
    "空のデータベース（既定 Akarix.MDB）を作ります。表、設定、入金区分だけが入っています。\n\n"
    "  --force   既にあるファイルを作り直す（中のデータは失われます）\n";

int Create(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(u"force"_s));
    if (!parser.parse(QStringList(QString()) + arguments) || parser.positionalArguments().size() > 1) {
        TellWrongUse(u"create"_s);
        return WrongUse;
    }
    const QString path = parser.positionalArguments().value(0, DatabaseName());
    const FileClaim claim(path);
    const QString reason = Refusal(path, parser.isSet(u"force"_s), claim);
    if (!reason.isEmpty()) {
        TellError(reason + u'\n');
        return Failed;
    }
    ReplaceFile(path, [](const QString& working) { CreateDelivered(working); });
    Tell(u"%1 を作りました。\n"_s.arg(path));
    return Done;
}

}  // namespace

Command CreateCommand() {
    return {u"create"_s, u"空のデータベースを作る"_s, QString::fromUtf8(kHelpText), Create};
}

}  // namespace akarix::admin
