#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/Hands.h"
#include "month/Steps.h"
#include "platform/forms/Label.h"
#include "shell/main_menu.h"
#include "store/dbAccess.h"

namespace akarix::month {

void startProgram(Desk& desk) {
    Clerk& clerk = desk.clerk;
    clerk.expect(QStringLiteral("Opening_frm"), [&desk](QWidget& splash) {
        desk.album.take(QStringLiteral("splash"), {&splash});
        desk.clerk.click(QStringLiteral("Image1"));
    });
    expectPictured(desk, QStringLiteral("Request_frm"), QStringLiteral("login"), Qt::Key_Return);
    if (!main_menu::Start()) {
        throw Failure(QStringLiteral(
            "Akarix が始まりません。既に動いているときは、終了してからもう一度行ってください。"));
    }
    takeForm(desk, QStringLiteral("menu"), QStringLiteral("main_menu"));
}

/// The first end of an installation needs to know where its copies go.
void chooseBackupPlace(Desk& desk) {
    desk.clerk.expect(QStringLiteral("Request_frm"), [&desk](QWidget& question) {
        desk.clerk.type(QStringLiteral("Backup"));
        desk.album.take(QStringLiteral("backup-place"), {&question});
        desk.clerk.enter();
    });
    desk.clerk.answerConfirm(true);
    desk.clerk.click(QStringLiteral("main_menu/Command(11)"));
}

void endProgram(Desk& desk) {
    desk.clerk.bringToFront(QStringLiteral("main_menu"));
    chooseBackupPlace(desk);
    expectPictured(desk, QStringLiteral("Alert_frm"), QStringLiteral("backup"), Qt::Key_Return);
    desk.clerk.closeBox(desk.clerk.form(QStringLiteral("main_menu")));
    if (gDb != nullptr) throw Failure(QStringLiteral("メニューを閉じてもデータベースが開いています。"));
}

}  // namespace akarix::month
