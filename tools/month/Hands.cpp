#include "month/Hands.h"

#include <QFileInfo>

#include "clerk/Clerk.h"
#include "month/Album.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/Options.h"
#include "platform/forms/Form.h"

namespace akarix::month {

void openFromMenu(Desk& desk, int button, const QString& form) {
    desk.clerk.bringToFront(QStringLiteral("main_menu"));
    desk.clerk.click(QStringLiteral("main_menu/Command(%1)").arg(button));
    desk.clerk.bringToFront(form);
}

void closeForm(Desk& desk, const QString& form) {
    desk.clerk.closeBox(desk.clerk.form(form));
    if (desk.clerk.isOpen(form)) throw Failure(form + QStringLiteral(" が閉じません。"));
}

void walkTo(Desk& desk, const QString& end, const std::map<QString, QString>& texts) {
    constexpr int mostFields = 60;
    for (int i = 0; i < mostFields; ++i) {
        const QString here = desk.clerk.focusedName();
        if (here == end) return;
        if (const auto text = texts.find(here); text != texts.end()) desk.clerk.type(text->second);
        desk.clerk.enter();
    }
    throw Failure(QStringLiteral("Enter で %1 に着きません。").arg(end));
}

void changeCustomer(Desk& desk, std::int32_t deal, const std::map<QString, QString>& texts,
                    const QStringList& ticks) {
    const QString form = QStringLiteral("MstDeal_frm");
    const QString save = QStringLiteral("Btn(2)");
    openFromMenu(desk, 13, form);
    desk.clerk.fill(QString::number(deal));
    walkTo(desk, save, texts);
    for (const QString& tick : ticks)
        desk.clerk.click(tick);
    desk.clerk.click(save);
    closeForm(desk, form);
}

std::map<QString, QString> monthTyped(const Options& options, int later) {
    const int index = options.year * 12 + options.month - 1 + later;
    return {{QStringLiteral("ebox(0)"), QString::number(index / 12)},
            {QStringLiteral("ebox(1)"), QString::number(index % 12 + 1)}};
}

void requireFocus(Desk& desk, const QString& control) {
    const QString here = desk.clerk.focusedName();
    if (here != control) {
        throw Failure(QStringLiteral("キーボードが %1 でなく %2 にあります。").arg(control, here));
    }
}

void takeForm(Desk& desk, const QString& picture, const QString& form) {
    desk.clerk.settle();
    desk.album.take(picture, {&desk.clerk.form(form)});
}

void expectPictured(Desk& desk, const QString& dialog, const QString& picture, int key) {
    desk.clerk.expect(dialog, [&desk, picture, key](QWidget& shown) {
        desk.album.take(picture, {&shown});
        desk.clerk.press(key);
    });
}

void saveAs(Desk& desk, const QString& button, const QString& path, const QString& picture) {
    desk.clerk.expect(QStringLiteral("SaveAs_frm"), [&desk, path, picture](QWidget& dialog) {
        desk.clerk.type(path);
        if (!picture.isEmpty()) desk.album.take(picture, {&dialog});
        desk.clerk.enter();
    });
    desk.clerk.click(button);
    requireFile(path);
}

void expectPrinter(Desk& desk, const QString& path, const QString& picture) {
    desk.clerk.expect(QStringLiteral("Printer_frm"), [&desk, path, picture](QWidget& dialog) {
        desk.clerk.press(Qt::Key_End);
        desk.clerk.tab();
        requireFocus(desk, QStringLiteral("Path"));
        desk.clerk.type(path);
        if (!picture.isEmpty()) desk.album.take(picture, {&dialog});
        desk.clerk.enter();
    });
}

void printTo(Desk& desk, const QString& button, const QString& path, const QString& picture) {
    expectPrinter(desk, path, picture);
    desk.clerk.click(button);
    requireFile(path);
}

void requireFile(const QString& path) {
    if (QFileInfo(path).size() == 0) throw Failure(path + QStringLiteral(" ができていません。"));
}

}  // namespace akarix::month
