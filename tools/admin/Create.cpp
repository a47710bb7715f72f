#include "admin/Create.h"

#include <QCommandLineParser>

#include "admin/FileClaim.h"
#include "admin/NewFile.h"
#include "admin/Terminal.h"
#include "store/CreateDatabase.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

const char* const helpText =
    "使い方: akarix-admin create [ファイル] [--force]\n\n"
    "空のデータベース（既定 Akarix.MDB）を作ります。表、設定、入金区分だけが入っています。\n\n"
    "  --force   既にあるファイルを作り直す（中のデータは失われます）\n";

int create(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(QStringLiteral("force")));
    if (!parser.parse(QStringList(QString()) + arguments) || parser.positionalArguments().size() > 1) {
        tellWrongUse(QStringLiteral("create"));
        return WrongUse;
    }
    const QString path = parser.positionalArguments().value(0, DatabaseName());
    const FileClaim claim(path);
    const QString reason = refusal(path, parser.isSet(QStringLiteral("force")), claim);
    if (!reason.isEmpty()) {
        tellError(reason + u'\n');
        return Failed;
    }
    replaceFile(path, [](const QString& working) { CreateDelivered(working); });
    tell(QStringLiteral("%1 を作りました。\n").arg(path));
    return Done;
}

}  // namespace

Command createCommand() {
    return {QStringLiteral("create"), QStringLiteral("空のデータベースを作る"), QString::fromUtf8(helpText),
            create};
}

}  // namespace akarix::admin
