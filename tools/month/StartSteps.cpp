#include "month/Hands.h"
#include "month/Steps.h"
#include "platform/forms/Label.h"
#include "shell/main_menu.h"
#include "store/dbAccess.h"

namespace akarix::month {

void StartProgram(Desk& desk) {
    Clerk& clerk = desk.clerk;
    clerk.expect(u"Opening_frm"_s, [&desk](QWidget& splash) {
        desk.album.take(u"splash"_s, {&splash});
        desk.clerk.click(u"Image1"_s);
    });
    ExpectPictured(desk, u"Request_frm"_s, u"login"_s, Qt::Key_Return);
    if (!main_menu::Start())
        throw Failure(u"Akarix が始まりません。既に動いているときは、終了してからもう一度行ってください。"_s);
    TakeForm(desk, u"menu"_s, u"main_menu"_s);
}

/// The first end of an installation needs to know where its copies go.
void ChooseBackupPlace(Desk& desk) {
    desk.clerk.expect(u"Request_frm"_s, [&desk](QWidget& question) {
        desk.clerk.type(u"Backup"_s);
        desk.album.take(u"backup-place"_s, {&question});
        desk.clerk.enter();
    });
    desk.clerk.answerConfirm(true);
    desk.clerk.click(u"main_menu/Command(11)"_s);
}

void EndProgram(Desk& desk) {
    desk.clerk.bringToFront(u"main_menu"_s);
    ChooseBackupPlace(desk);
    ExpectPictured(desk, u"Alert_frm"_s, u"backup"_s, Qt::Key_Return);
    desk.clerk.closeBox(desk.clerk.form(u"main_menu"_s));
    if (gDb != nullptr) throw Failure(u"メニューを閉じてもデータベースが開いています。"_s);
}

}  // namespace akarix::month
