#include "month/WorkFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "month/Failure.h"
#include "platform/jet/Database.h"
#include "platform/runtime/FileHolders.h"
#include "sample/OpenStore.h"
#include "sample/SampleDealer.h"
#include "store/CreateDatabase.h"
#include "store/dbAccess.h"

namespace akarix::month {

namespace {

/// Says that a folder is this program's to empty.
const QString marker = QStringLiteral(".akarix-month");

constexpr int monthsBefore = 14;  // a year to look back on, and a little

QString templateFolder(const QString& wished) {
    const QStringList places =
        !wished.isEmpty()
            ? QStringList{wished}
            : QStringList{QStringLiteral("Prt"), QStringLiteral(AKARIX_SOURCE_TEMPLATES),
                          QCoreApplication::applicationDirPath() + QStringLiteral("/../share/akarix/Prt")};
    for (const QString& place : places) {
        const QDir folder(place);
        if (!folder.entryList({QStringLiteral("*.xlsx")}, QDir::Files).isEmpty())
            return folder.absolutePath();
    }
    throw Failure(QStringLiteral("帳票の雛形がありません: ") + places.join(QStringLiteral("、")));
}

}  // namespace

WorkFolder::WorkFolder(const QString& path) : root_(QDir(path).absolutePath()) {
    QDir folder(root_);
    const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    if (!folder.exists(marker) && !folder.isEmpty(everything)) {
        throw Failure(
            QStringLiteral("%1 には他のものがあります。--out で別のフォルダを指定してください。").arg(root_));
    }
    const QStringList holders = FileHolders(database()).value_or(QStringList());
    if (!holders.isEmpty()) {
        throw Failure(
            QStringLiteral("%1 は使用中です: %2").arg(database(), holders.join(QStringLiteral("、"))));
    }
    for (const QString& name : folder.entryList(everything)) {
        if (!QFileInfo(folder.filePath(name)).isDir()) {
            folder.remove(name);
        } else {
            QDir(folder.filePath(name)).removeRecursively();
        }
    }
    QFile mark(folder.filePath(marker));
    if (!folder.mkpath(QStringLiteral(".")) || !mark.open(QFile::WriteOnly)) {
        throw Failure(QStringLiteral("フォルダ %1 に書き込めません。").arg(root_));
    }
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
    sample::FillSampleDealer({options.customers, monthsBefore, lastMonth / 12, lastMonth % 12 + 1},
                             [](const QString&) {});
    gDb->Execute(QStringLiteral("UPDATE zSysFunc SET contents='0' WHERE Code=2"));
}

void WorkFolder::hangDrive() const {
    const QDir drives(QDir(dealer()).filePath(QStringLiteral("Drive")));
    QDir().mkpath(drives.path());
    QDir().mkpath(disk());
    // By a path of its own, so that the folder can be moved as a whole.
    if (!QFile::link(drives.relativeFilePath(disk()), drives.filePath(QStringLiteral("A")))) {
        throw Failure(QStringLiteral("%1 に A ドライブを作れません。").arg(drives.path()));
    }
}

void WorkFolder::copyTemplates(const QString& wished) const {
    const QDir from(templateFolder(wished));
    const QDir to(QDir(dealer()).filePath(QStringLiteral("Prt")));
    QDir().mkpath(to.path());
    for (const QString& name : from.entryList(QDir::Files)) {
        if (!QFile::copy(from.filePath(name), to.filePath(name))) {
            throw Failure(QStringLiteral("雛形 %1 を写せません。").arg(name));
        }
    }
}

}  // namespace akarix::month
