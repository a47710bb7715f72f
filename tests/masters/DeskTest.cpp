#include "desk/DeskScript.h"
#include "masters/BKItaku_frm.h"
#include "masters/GTanka_frm.h"
#include "masters/MstBnk_frm.h"
#include "masters/MstDeal_frm.h"
#include "masters/MstHin_frm.h"
#include "masters/MstRte_frm.h"
#include "masters/MstTanka_frm.h"
#include "masters/MstYubin_frm.h"
#include "masters/ms_frm.h"

namespace akarix {
namespace {

void OpenCodeList(const QString& table) {
    auto& form = Form::Instance<ms_frm>();
    form.Show();
    form.init(table);
}

const bool kFound =
    RegisterDeskScripts(QStringLiteral(AKARIX_TEST_DATA), {{"BKItaku_frm", &Opens<BKItaku_frm>},
                                                           {"GTanka_frm", &Opens<GTanka_frm>},
                                                           {"MstBnk_frm", &Opens<MstBnk_frm>},
                                                           {"MstDeal_frm", &Opens<MstDeal_frm>},
                                                           {"MstHin_frm", &Opens<MstHin_frm>},
                                                           {"MstRte_frm", &Opens<MstRte_frm>},
                                                           {"MstTanka_frm", &Opens<MstTanka_frm>},
                                                           {"MstYubin_frm", &Opens<MstYubin_frm>},
                                                           {"ms_frm", &OpenCodeList}});

}  // namespace
}  // namespace akarix
