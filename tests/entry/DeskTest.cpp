#include "desk/DeskScript.h"
#include "entry/SlipG_frm.h"
#include "entry/SlipN2_frm.h"
#include "entry/Slip_frm.h"
#include "entry/TorZan_frm.h"
#include "values/Dates.h"

namespace akarix {
namespace {

template <class F>
void OpenOnSlip(const QString& number) {
    std::int32_t dno = number.toInt();
    Form::Instance<F>().fromexe(dno);
}

const bool kFound = RegisterDeskScripts(
    QStringLiteral(AKARIX_TEST_DATA),
    {{"Slip_frm", &Opens<Slip_frm>},
     {"SlipG_frm", &Opens<SlipG_frm>},
     {"SlipN2_frm", &Opens<SlipN2_frm>},
     {"TorZan_frm", &Opens<TorZan_frm>},
     {"saleOf", &OpenOnSlip<Slip_frm>},
     {"paymentOf", &OpenOnSlip<SlipN2_frm>},
     {"readingsOf",
      [](const QString& customer) {
          std::int16_t nendo = 2023;
          std::int16_t getudo = 4;
          std::int32_t deal = customer.toInt();
          Form::Instance<SlipG_frm>().fromexe(nendo, getudo, deal);
      }},
     {"years", [](const QString& mode) { gDateMode = static_cast<std::int16_t>(mode.toInt()); }}});

}  // namespace
}  // namespace akarix
