#include "admin/Restore.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <optional>

#include "admin/Columns.h"
#include "admin/FileClaim.h"
#include "admin/FileReport.h"
#include "admin/MonthArgument.h"
#include "admin/NewFile.h"
#include "admin/ReadStore.h"
#include "admin/Terminal.h"
#include "ledger/Rows.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Path.h"
#include "platform/runtime/RuntimeError.h"
#include "store/BackupPlace.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

const char* const helpText =
    "使い方: akarix-admin restore [番号] [--from フォルダ] [--force]\n\n"
    "番号なし: Akarix が終わるときに取った曜日ごとの控え（Akarix1.MDB から Akarix7.MDB）を、日時、大きさ、\n"
    "最後に請求処理をした月、検査の結果とともに並べます。控えのフォルダは、今のフォルダのファイル BKPath\n"
    "から読みます。\n\n"
    "番号（1 日曜 から 7 土曜）: その控えを Akarix.MDB に戻します。今の Akarix.MDB は日時の付いた名前で\n"
    "となりに残します。壊れた控えと、Akarix が使用中のときは戻しません。\n\n"
    "  --from フォルダ   BKPath のかわりに、このフォルダの控えを使う\n"
    "  --force           壊れた控えでも戻す（使用中のときは、それでも戻しません）\n\n"
    "データベースのあるフォルダで実行してください。\n"
    "終了コード: 0 正常、1 失敗、2 使い方の誤り\n";

constexpr int weekdays = 7;

/// "日" for 1.
QString weekdayName(int number) {
    return QStringLiteral("日月火水木金土").mid(number - 1, 1);
}

QString copyOf(const QString& place, int number) {
    return LocalPath(BackupCopy(place, number));
}

QString journalOf(const QString& path) {
    return path + QStringLiteral("-journal");
}

QString timeText(const QFileInfo& file) {
    return file.lastModified().toString(QStringLiteral("yyyy/MM/dd HH:mm"));
}

/// The last month that was billed in a copy, which tells better than its date how far its books go.
QString lastBilled(const QString& copy) {
    try {
        const ReadStore store(copy);
        const auto last = readNumbers(
            store.db(), QStringLiteral("SELECT TOP 1 Nen,Tuki FROM Syukei ORDER BY Nen*100+Tuki DESC"));
        return last.empty() ? QString()
                            : monthText(static_cast<int>(last[0][0]), static_cast<int>(last[0][1]));
    } catch (const RuntimeError&) {
        return {};
    }
}

int listCopies(const QString& place) {
    Columns table({QStringLiteral(">番号"), QStringLiteral("曜日"), QStringLiteral("日時"),
                   QStringLiteral(">バイト"), QStringLiteral("請求処理"), QStringLiteral("検査"),
                   QStringLiteral("ファイル")});
    bool isAny = false;
    for (int number = 1; number <= weekdays; ++number) {
        const QString copy = copyOf(place, number);
        const QFileInfo file(copy);
        if (!file.isFile()) continue;
        isAny = true;
        const FileState state = stateOf(copy);
        table.add({QString::number(number), weekdayName(number), timeText(file),
                   QLocale::c().toString(file.size()), state.check.opens ? lastBilled(copy) : QString(),
                   state.sound() ? QStringLiteral("正常") : state.faults, copy});
    }
    if (!isAny) {
        tellError(QStringLiteral("%1 に控えがありません。\n").arg(place));
        return Failed;
    }
    tell(table.text());
    return Done;
}

/// A free name beside the file that tells when it was set aside: "Akarix-20110430-173005.MDB".
QString asideName(const QString& path) {
    const QString moment = Format(Now(), QStringLiteral("yyyymmdd-hhnnss"));
    const QFileInfo file(path);
    const auto name = [&](const QString& count) {
        return file.dir().filePath(
            QStringLiteral("%1-%2%3.%4").arg(file.completeBaseName(), moment, count, file.suffix()));
    };
    QString free = name(QString());
    for (int count = 2; QFileInfo::exists(free); ++count)
        free = name(QStringLiteral("-%1").arg(count));
    return free;
}

/// Sets the present file aside, with the journal that belongs to it when a program died over it.
QString setAside(const QString& path) {
    const QString aside = asideName(path);
    if (QFileInfo::exists(journalOf(path))) copyFile(journalOf(path), journalOf(aside));
    copyFile(path, aside);
    return aside;
}

int restore(const QString& place, int number, bool force) {
    const QString copy = copyOf(place, number);
    if (!QFileInfo(copy).isFile()) {
        tellError(QStringLiteral("控えがありません: %1\n").arg(copy));
        return Failed;
    }
    const QString path = DatabaseName();
    const FileClaim claim(path);
    if (!claim.refusal().isEmpty()) {
        tellError(claim.refusal() + u'\n');
        return Failed;
    }
    const FileState state = stateOf(copy);
    if (!state.sound()) {
        tellError(QStringLiteral("%1: %2\n").arg(copy, state.faults));
        if (!force) {
            tellError(QStringLiteral("戻しませんでした。それでも戻すときは --force を付けてください。\n"));
            return Failed;
        }
    }
    const QString time = timeText(QFileInfo(copy));
    const QString aside = QFileInfo(path).isFile() ? setAside(path) : QString();
    replaceFile(path, [&copy](const QString& working) { copyFile(copy, working); });
    tell(QStringLiteral("%1曜日の控え（%2）を %3 に戻しました。\n").arg(weekdayName(number), time, path));
    if (!aside.isEmpty()) tell(QStringLiteral("これまでのものは %1 にあります。\n").arg(aside));
    return Done;
}

/// A number of 1 to 7; 0 when none is given.
std::optional<int> readNumber(const QStringList& arguments) {
    if (arguments.isEmpty()) return 0;
    const int number = arguments.first().toInt();
    return arguments.size() == 1 && number >= 1 && number <= weekdays ? std::optional(number) : std::nullopt;
}

int run(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOptions({QCommandLineOption(QStringLiteral("force")),
                       QCommandLineOption(QStringLiteral("from"), QString(), QStringLiteral("folder"))});
    const bool understood = parser.parse(QStringList(QString()) + arguments);
    const std::optional<int> number = readNumber(parser.positionalArguments());
    if (!understood || !number) {
        tellWrongUse(QStringLiteral("restore"));
        return WrongUse;
    }
    QString place = parser.value(QStringLiteral("from"));
    if (place.isEmpty()) {
        if (!QFileInfo(BackupPlaceFile()).isFile()) {
            tellError(QStringLiteral(
                "ファイル BKPath がありません。データベースのあるフォルダで実行するか、--from で\n"
                "控えのフォルダを指定してください。\n"));
            return Failed;
        }
        place = ReadBackupPlace();
    }
    if (*number == 0) return listCopies(place);
    return restore(place, *number, parser.isSet(QStringLiteral("force")));
}

}  // namespace

Command restoreCommand() {
    return {QStringLiteral("restore"), QStringLiteral("曜日ごとの控えを並べる、戻す"),
            QString::fromUtf8(helpText), run};
}

}  // namespace akarix::admin
