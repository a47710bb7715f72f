#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include "admin/Columns.h"
#include "admin/Command.h"
#include "admin/FileClaim.h"
#include "admin/FileReport.h"
#include "admin/MonthArgument.h"
#include "admin/NewFile.h"
#include "admin/Terminal.h"
#include "ledger/Rows.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "sample/OpenStore.h"
#include "store/BackupPlace.h"
#include "store/dbAccess.h"

namespace akarix::admin {

namespace {

const char* const kHelpText =
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

constexpr int kWeekdays = 7;

/// "日" for 1.
QString WeekdayName(int number) {
    return u"日月火水木金土"_s.mid(number - 1, 1);
}

QString CopyOf(const QString& place, int number) {
    return LocalPath(BackupCopy(place, number));
}

QString JournalOf(const QString& path) {
    return path + u"-journal"_s;
}

QString TimeText(const QFileInfo& file) {
    return file.lastModified().toString(u"yyyy/MM/dd HH:mm"_s);
}

/// The last month that was billed in a copy, which tells better than its date how far its books go.
QString LastBilled(const QString& copy) {
    try {
        const sample::OpenStore store(copy, true);
        const auto last =
            ReadNumbers(*gDb, u"SELECT TOP 1 Nen,Tuki FROM Syukei ORDER BY Nen*100+Tuki DESC"_s);
        return last.empty() ? QString()
                            : MonthText({static_cast<int>(last[0][0]), static_cast<int>(last[0][1])});
    } catch (const RuntimeError&) {
        return {};
    }
}

int ListCopies(const QString& place) {
    Columns table({u">番号"_s, u"曜日"_s, u"日時"_s, u">バイト"_s, u"請求処理"_s, u"検査"_s, u"ファイル"_s});
    for (int number = 1; number <= kWeekdays; ++number) {
        const QString copy = CopyOf(place, number);
        const QFileInfo file(copy);
        if (!file.isFile()) continue;
        const FileState state = StateOf(copy);
        table.add({QString::number(number), WeekdayName(number), TimeText(file),
                   QLocale::c().toString(file.size()), state.check.opens ? LastBilled(copy) : QString(),
                   state.sound() ? u"正常"_s : state.faults, copy});
    }
    if (table.isEmpty()) throw Stop{Failed, u"%1 に控えがありません。"_s.arg(place)};
    Tell(table.text());
    return Done;
}

/// A free name beside the file that tells when it was set aside: "Akarix-20110430-173005.MDB".
QString AsideName(const QString& path) {
    const QString moment = Format(Now(), u"yyyymmdd-hhnnss"_s);
    const QFileInfo file(path);
    const auto name = [&](const QString& count) {
        return file.dir().filePath(
            u"%1-%2%3.%4"_s.arg(file.completeBaseName(), moment, count, file.suffix()));
    };
    QString free = name(QString());
    for (int count = 2; QFileInfo::exists(free); ++count)
        free = name(u"-%1"_s.arg(count));
    return free;
}

/// Sets the present file aside, with the journal that belongs to it when a program died over it.
QString SetAside(const QString& path) {
    const QString aside = AsideName(path);
    if (QFileInfo::exists(JournalOf(path))) CopyFile(JournalOf(path), JournalOf(aside));
    CopyFile(path, aside);
    return aside;
}

int Restore(const QString& place, int number, bool force) {
    const QString copy = CopyOf(place, number);
    if (!QFileInfo(copy).isFile()) throw Stop{Failed, u"控えがありません: %1"_s.arg(copy)};
    const QString path = DatabaseName();
    const FileClaim claim(path);
    const FileState state = StateOf(copy);
    if (!state.sound()) {
        TellError(u"%1: %2\n"_s.arg(copy, state.faults));
        if (!force) throw Stop{Failed, u"戻しませんでした。それでも戻すときは --force を付けてください。"_s};
    }
    const QString time = TimeText(QFileInfo(copy));
    const QString aside = QFileInfo(path).isFile() ? SetAside(path) : QString();
    ReplaceFile(path, [&copy](const QString& working) { CopyFile(copy, working); });
    Tell(u"%1曜日の控え（%2）を %3 に戻しました。\n"_s.arg(WeekdayName(number), time, path));
    if (!aside.isEmpty()) Tell(u"これまでのものは %1 にあります。\n"_s.arg(aside));
    return Done;
}

int RunRestore(const QCommandLineParser& given) {
    const QStringList wished = given.positionalArguments();
    const auto number = wished.isEmpty() ? 0 : ReadCount(wished.first(), kWeekdays);
    if (!number) throw Misuse();
    QString place = given.value(u"from"_s);
    if (place.isEmpty()) {
        if (!QFileInfo(BackupPlaceFile()).isFile())
            throw Stop{Failed,
                       u"ファイル BKPath がありません。データベースのあるフォルダで実行するか、--from で\n"
                       "控えのフォルダを指定してください。"_s};
        place = ReadBackupPlace();
    }
    return *number == 0 ? ListCopies(place) : Restore(place, *number, given.isSet(u"force"_s));
}

}  // namespace

Command RestoreCommand() {
    return {u"restore"_s, u"曜日ごとの控えを並べる、戻す"_s,
            kHelpText,    {QCommandLineOption(u"force"_s), {u"from"_s, {}, u"folder"_s}},
            {0, 1},       RunRestore};
}

}  // namespace akarix::admin
