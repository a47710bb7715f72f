#include "month/Hands.h"

#include <QFileInfo>

namespace akarix::month {

QString Ebox(int index) {
    return u"ebox(%1)"_s.arg(index);
}

Texts MonthTyped(const Options& options, int later, Texts more) {
    const int index = options.year * 12 + options.month - 1 + later;
    more[Ebox(0)] = QString::number(index / 12);
    more[Ebox(1)] = QString::number(index % 12 + 1);
    return more;
}

void OpenFromMenu(Desk& desk, int button, const QString& form) {
    desk.clerk.bringToFront(u"main_menu"_s);
    desk.clerk.click(u"main_menu/Command(%1)"_s.arg(button));
    desk.clerk.bringToFront(form);
}

void CloseForm(Desk& desk, const QString& form) {
    desk.clerk.closeBox(desk.clerk.form(form));
    if (desk.clerk.isOpen(form)) throw Failure(form + u" が閉じません。"_s);
}

void WalkTo(Desk& desk, const QString& end, const Texts& texts) {
    constexpr int mostFields = 60;
    for (int i = 0; i < mostFields; ++i) {
        const QString here = desk.clerk.focusedName();
        if (here == end) return;
        if (const auto text = texts.find(here); text != texts.end()) desk.clerk.type(text->second);
        desk.clerk.enter();
    }
    throw Failure(u"Enter で %1 に着きません。"_s.arg(end));
}

void FinishForm(Desk& desk, const QString& form, const QString& save, const Texts& texts,
                const QString& picture) {
    WalkTo(desk, save, texts);
    TakeForm(desk, picture, form);
    desk.clerk.enter();
    CloseForm(desk, form);
}

void KeepForm(Desk& desk, int button, const QString& form, const QString& save, const Texts& texts,
              const QString& picture) {
    OpenFromMenu(desk, button, form);
    FinishForm(desk, form, save, texts, picture);
}

void ChangeCustomer(Desk& desk, std::int32_t deal, const Texts& texts, const QStringList& ticks) {
    const QString form = u"MstDeal_frm"_s;
    const QString save = u"Btn(2)"_s;
    OpenFromMenu(desk, 13, form);
    desk.clerk.fill(QString::number(deal));
    WalkTo(desk, save, texts);
    for (const QString& tick : ticks)
        desk.clerk.click(tick);
    desk.clerk.click(save);
    CloseForm(desk, form);
}

void RequireFocus(Desk& desk, const QString& control) {
    const QString here = desk.clerk.focusedName();
    if (here != control) throw Failure(u"キーボードが %1 でなく %2 にあります。"_s.arg(control, here));
}

void TakeForm(Desk& desk, const QString& picture, const QString& form) {
    desk.clerk.settle();
    desk.album.take(picture, {&desk.clerk.form(form)});
}

void ExpectPictured(Desk& desk, const QString& dialog, const QString& picture, int key) {
    desk.clerk.expect(dialog, [&desk, picture, key](QWidget& shown) {
        desk.album.take(picture, {&shown});
        desk.clerk.press(key);
    });
}

void SaveAs(Desk& desk, const QString& button, const QString& path, const QString& picture) {
    desk.clerk.expect(u"SaveAs_frm"_s, [&desk, path, picture](QWidget& dialog) {
        desk.clerk.type(path);
        if (!picture.isEmpty()) desk.album.take(picture, {&dialog});
        desk.clerk.enter();
    });
    desk.clerk.click(button);
    RequireFile(path);
}

void ExpectPrinter(Desk& desk, const QString& path, const QString& picture) {
    desk.clerk.expect(u"Printer_frm"_s, [&desk, path, picture](QWidget& dialog) {
        desk.clerk.press(Qt::Key_End);
        desk.clerk.tab();
        RequireFocus(desk, u"Path"_s);
        desk.clerk.type(path);
        if (!picture.isEmpty()) desk.album.take(picture, {&dialog});
        desk.clerk.enter();
    });
}

void PrintInto(Desk& desk, const QString& button, const QString& path, const QString& picture) {
    ExpectPrinter(desk, path, picture);
    desk.clerk.click(button);
    RequireFile(path);
}

void RequireFile(const QString& path) {
    if (QFileInfo(path).size() == 0) throw Failure(path + u" ができていません。"_s);
}

}  // namespace akarix::month
