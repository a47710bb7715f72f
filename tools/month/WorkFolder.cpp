#include "month/WorkFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "month/Failure.h"
#include "platform/dao/Database.h"
#include "platform/runtime/FileHolders.h"
#include "platform/runtime/Literals.h"
#include "sample/OpenStore.h"
#include "sample/SampleDealer.h"
#include "store/CreateDatabase.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

/// Says that a folder is this program's to empty.
const QString kMarker = u".akarix-month"_s;

constexpr int kMonthsBefore = 14;  // a year to look back on, and a little

QString TemplateFolder(const QString& wished) {
    const QStringList places =
        !wished.isEmpty() ? QStringList{wished}
                          : QStringList{u"Prt"_s, QStringLiteral(AKARIX_SOURCE_TEMPLATES),
                                        QCoreApplication::applicationDirPath() + u"/../share/akarix/Prt"_s};
    for (const QString& place : places) {
        const QDir folder(place);
        if (!folder.entryList({u"*.xlsx"_s}, QDir::Files).isEmpty()) return folder.absolutePath();
    }
    throw Failure(u"帳票の雛形がありません: "_s + places.join(u"、"_s));
}

}  // namespace

WorkFolder::WorkFolder(const QString& path) : root_(QDir(path).absolutePath()) {
    QDir folder(root_);
    const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    if (!folder.exists(kMarker) && !folder.isEmpty(everything))
        throw Failure(u"%1 には他のものがあります。--out で別のフォルダを指定してください。"_s.arg(root_));
    const QStringList holders = FileHolders(database()).value_or(QStringList());
    if (!holders.isEmpty()) throw Failure(u"%1 は使用中です: %2"_s.arg(database(), holders.join(u"、"_s)));
    for (const QString& name : folder.entryList(everything))
        if (!QFileInfo(folder.filePath(name)).isDir())
            folder.remove(name);
        else
            QDir(folder.filePath(name)).removeRecursively();
    QFile mark(folder.filePath(kMarker));
    if (!folder.mkpath(u"."_s) || !mark.open(QFile::WriteOnly))
        throw Failure(u"フォルダ %1 に書き込めません。"_s.arg(root_));
}

QString WorkFolder::path(const QString& name) const {
    return QDir(root_).filePath(name);
}

QString WorkFolder::database() const {
    return QDir(dealer()).filePath(DatabaseName());
}

void WorkFolder::makeDealer(const Options& options) const {
    QDir().mkpath(dealer());
    copyTemplates(options.templates);
    hangDrive();
    CreateDelivered(database());
    const sample::OpenStore store(database());
    const int lastMonth = options.year * 12 + options.month - 2;
    sample::FillSampleDealer({options.customers, kMonthsBefore, lastMonth / 12, lastMonth % 12 + 1},
                             [](const QString&) {});
    gDb->Execute(u"UPDATE zSysFunc SET contents='0' WHERE Code=2"_s);
}

void WorkFolder::hangDrive() const {
    const QDir drives(QDir(dealer()).filePath(u"Drive"_s));
    QDir().mkpath(drives.path());
    QDir().mkpath(disk());
    // By a path of its own, so that the folder can be moved as a whole.
    if (!QFile::link(drives.relativeFilePath(disk()), drives.filePath(u"A"_s)))
        throw Failure(u"%1 に A ドライブを作れません。"_s.arg(drives.path()));
}

void WorkFolder::copyTemplates(const QString& wished) const {
    const QDir from(TemplateFolder(wished));
    const QDir to(QDir(dealer()).filePath(u"Prt"_s));
    QDir().mkpath(to.path());
    for (const QString& name : from.entryList(QDir::Files))
        if (!QFile::copy(from.filePath(name), to.filePath(name)))
            throw Failure(u"雛形 %1 を写せません。"_s.arg(name));
}

}  // namespace akarix::month
