#include "desk/DeskScript.h"
#include "shell/Keihoki_frm.h"
#include "shell/SysFunc_frm.h"
#include "shell/etc_frm.h"

namespace akarix {
namespace {

const bool kFound =
    RegisterDeskScripts(QStringLiteral(AKARIX_TEST_DATA), {{"Keihoki_frm", &Opens<Keihoki_frm>},
                                                           {"SysFunc_frm", &Opens<SysFunc_frm>},
                                                           {"etc_frm", &Opens<etc_frm>}});

}  // namespace
}  // namespace akarix
