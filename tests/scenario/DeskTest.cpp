#include "billing/Seikyu_frm.h"
#include "desk/DeskScript.h"
#include "entry/SlipG_frm.h"
#include "entry/SlipN2_frm.h"
#include "entry/Slip_frm.h"
#include "reports/RepoDaichou_frm.h"

namespace akarix {
namespace {

const bool kFound =
    RegisterDeskScripts(QStringLiteral(AKARIX_TEST_DATA), {{"readings", &Opens<SlipG_frm>},
                                                           {"slip", &Opens<Slip_frm>},
                                                           {"payment", &Opens<SlipN2_frm>},
                                                           {"billing", &Opens<Seikyu_frm>},
                                                           {"account", &Opens<RepoDaichou_frm>}});

}  // namespace
}  // namespace akarix
