#include "shell/Backup.h"

#include "dialogs/AskConfirm.h"
#include "dialogs/AskText.h"
#include "dialogs/ShowAlert.h"
#include "platform/dao/DBEngine.h"
#include "platform/forms/LongRun.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"
#include "platform/runtime/Text.h"
#include "store/BackupPlace.h"
#include "store/dbAccess.h"

namespace akarix {

namespace {

constexpr int kDamaged = 3343;

/// The number of the error that stopped the step; 0 when it was done.
int Attempt(void (*step)(const QString& place), const QString& place) {
    try {
        step(place);
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

void CopyTo(const QString& place) {
    LongRun run(u"バックアップコピー"_s, LongRun::AtSessionEnd::GoesOn);
    DBEngine::CopyDatabase(DatabaseName(), BackupCopy(place, Weekday(Today())), run);
}

}  // namespace

void ChangeBackupPlace() {
    QString place = BaseFolder() + u"Backup"_s;
    if (Dir(BackupPlaceFile()).toUpper() == BackupPlaceFile().toUpper()) place = ReadBackupPlace();
    QString answer = AskText(u"バックアップの場所。"_s, place);
    if (answer.isEmpty()) answer = Trim(place);
    if (AskConfirm(answer + u"で更新します。"_s, u"はい"_s, u"いいえ"_s)) WriteBackupPlace(answer);
}

void BackUp() {
    const QString folder = BackupFolder(ReadBackupPlace());
    Attempt(&MkDir, folder);  // it mostly exists
    const int failure = Attempt(&CopyTo, folder);
    if (failure == 0) ShowAlert(folder + u"へバックアップコピーしました。"_s);
    if (failure == kDamaged)
        ShowAlert(DatabaseName() + u" が壊れているので、バックアップコピーしませんでした。"_s);
}

}  // namespace akarix
