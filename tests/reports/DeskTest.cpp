#include "desk/DeskScript.h"
#include "reports/RepoDaichou_frm.h"
#include "reports/RepoSeikyu_frm.h"
#include "reports/SeikyuPrt_frm.h"
#include "store/Settings.h"

namespace akarix {
namespace {

const bool kFound = RegisterDeskScripts(
    QStringLiteral(AKARIX_TEST_DATA),
    {{"RepoDaichou_frm", &Opens<RepoDaichou_frm>},
     {"RepoSeikyu_frm", &Opens<RepoSeikyu_frm>},
     {"SeikyuPrt_frm", &Opens<SeikyuPrt_frm>},
     {"mode", [](const QString& way) { gInvoiceMode = static_cast<std::int16_t>(way.toInt()); }}});

}  // namespace
}  // namespace akarix
