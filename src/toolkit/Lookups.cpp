#include "toolkit/Lookups.h"

#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"
#include "toolkit/HelpDeal_frm.h"
#include "toolkit/HelpN_frm.h"
#include "toolkit/HelpSlip_frm.h"
#include "toolkit/Help_frm.h"

namespace akarix {

QString PickCode(const QString& table, const QString& mode) {
    return table == u"Deal" ? Pick<HelpDeal_frm>(table, mode) : Pick<Help_frm>(table, mode);
}

QString PickPayment(std::int32_t customer) {
    return Pick<HelpN_frm>(customer);
}

QString PickSlip() {
    return Pick<HelpSlip_frm>();
}

void WireLookup(Form& form, Image& picture, std::function<QString()> pick, TextBox& box,
                std::function<void()> enter) {
    form.on(
        &picture, &Image::MouseDown, [&picture] { picture.SetBorderStyle(1); });
    form.on(&picture, &Image::MouseUp, [&picture] { picture.SetBorderStyle(0); });
    form.on(&picture, &Image::Click, [pick = std::move(pick), &box, enter = std::move(enter)] {
        const QString code = pick();
        if (code.isEmpty()) return;
        box.SetText(code);
        enter();
    });
}

void WireLookup(Form& form, Image& picture, const QString& table, const QString& mode, TextBox& box,
                std::function<void()> enter) {
    WireLookup(
        form, picture, [table, mode] { return PickCode(table, mode); }, box, std::move(enter));
}

}  // namespace akarix
