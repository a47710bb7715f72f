#include "billing/Seikyu_frm.h"
#include "desk/DeskScript.h"

namespace akarix {
namespace {

const bool kFound =
    RegisterDeskScripts(QStringLiteral(AKARIX_TEST_DATA), {{"Seikyu_frm", &Opens<Seikyu_frm>}});

}  // namespace
}  // namespace akarix
