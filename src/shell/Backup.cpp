#include "shell/Backup.h"

#include <QScopeGuard>

#include "dialogs/AskConfirm.h"
#include "dialogs/AskText.h"
#include "dialogs/ShowAlert.h"
#include "platform/jet/DBEngine.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/DatePart.h"
#include "platform/runtime/Dir.h"
#include "platform/runtime/Input.h"
#include "platform/runtime/MkDir.h"
#include "platform/runtime/Open.h"
#include "platform/runtime/Path.h"
#include "platform/runtime/Print.h"
#include "platform/runtime/RuntimeError.h"
#include "store/dbAccess.h"
#include "values/NumStr.h"
#include "values/Text.h"

namespace akarix {

namespace {

const QString kPlaceFile = QStringLiteral("BKPath");

QString readPlace() {
    const int number = FreeFile();
    Open(kPlaceFile, OpenMode::Input, number);
    const auto close = qScopeGuard([number] { Close(number); });
    return Input(number);
}

void writePlace(const QString& place) {
    const int number = FreeFile();
    Open(kPlaceFile, OpenMode::Output, number);
    Print(number, place);
    Close(number);
}

/// False when the step failed.
bool attempt(void (*step)(const QString& place), const QString& place) {
    try {
        step(place);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void copyInto(const QString& folder) {
    DBEngine::CopyDatabase(DatabaseName(), folder + QStringLiteral("Akarix") + NumStr(Weekday(Today())) +
                                               QStringLiteral(".MDB"));
}

}  // namespace

void ChangeBackupPlace() {
    QString place = BaseFolder() + QStringLiteral("Backup");
    if (Dir(kPlaceFile).toUpper() == kPlaceFile.toUpper()) place = readPlace();
    QString answer = AskText(QStringLiteral("バックアップの場所。"), place);
    if (answer.isEmpty()) answer = Trim(place);
    if (AskConfirm(answer + QStringLiteral("で更新します。"), QStringLiteral("はい"),
                   QStringLiteral("いいえ"))) {
        writePlace(answer);
    }
}

void BackUp() {
    QString folder = readPlace();
    if (!folder.endsWith(u'\\')) folder += u'\\';
    attempt(&MkDir, folder);  // it mostly exists
    if (attempt(&copyInto, folder)) ShowAlert(folder + QStringLiteral("へバックアップコピーしました。"));
}

}  // namespace akarix
