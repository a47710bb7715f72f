#include "shell/Backup.h"

#include "dialogs/AskConfirm.h"
#include "dialogs/AskText.h"
#include "dialogs/ShowAlert.h"
#include "platform/forms/LongRun.h"
#include "platform/jet/DBEngine.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Dir.h"
#include "platform/runtime/MkDir.h"
#include "platform/runtime/Path.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Trim.h"
#include "store/BackupPlace.h"
#include "store/dbAccess.h"

namespace akarix {

namespace {

constexpr int kDamaged = 3343;

/// The number of the error that stopped the step; 0 when it was done.
int attempt(void (*step)(const QString& place), const QString& place) {
    try {
        step(place);
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

void copyTo(const QString& place) {
    LongRun run(QStringLiteral("バックアップコピー"), LongRun::AtSessionEnd::GoesOn);
    DBEngine::CopyDatabase(DatabaseName(), BackupCopy(place, Weekday(Today())), run);
}

}  // namespace

void ChangeBackupPlace() {
    QString place = BaseFolder() + QStringLiteral("Backup");
    if (Dir(BackupPlaceFile()).toUpper() == BackupPlaceFile().toUpper()) place = ReadBackupPlace();
    QString answer = AskText(QStringLiteral("バックアップの場所。"), place);
    if (answer.isEmpty()) answer = Trim(place);
    if (AskConfirm(answer + QStringLiteral("で更新します。"), QStringLiteral("はい"),
                   QStringLiteral("いいえ"))) {
        WriteBackupPlace(answer);
    }
}

void BackUp() {
    const QString folder = BackupFolder(ReadBackupPlace());
    attempt(&MkDir, folder);  // it mostly exists
    const int failure = attempt(&copyTo, folder);
    if (failure == 0) ShowAlert(folder + QStringLiteral("へバックアップコピーしました。"));
    if (failure == kDamaged) {
        ShowAlert(DatabaseName() + QStringLiteral(" が壊れているので、バックアップコピーしませんでした。"));
    }
}

}  // namespace akarix
