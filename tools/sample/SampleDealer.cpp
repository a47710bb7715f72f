#include "sample/SampleDealer.h"

#include "platform/runtime/Action.h"
#include "platform/runtime/Literals.h"
#include "sample/SampleMasters.h"
#include "sample/SampleMonth.h"

namespace akarix::sample {

void FillSampleDealer(const Wish& wish, const Progress& progress) {
    Dice dice(0x414B41524958u);
    std::vector<Customer> customers;
    {
        const Action grouped;
        progress(u"台帳と得意先"_s);
        FillMasters();
        customers = FillCustomers(wish.customers, dice);
    }
    MonthMaker months(customers, dice);
    for (int ago = wish.months - 1; ago >= 0; --ago) {
        const Action grouped;
        const int index = wish.untilYear * 12 + wish.untilMonth - 1 - ago;
        const int year = index / 12;
        const int month = index % 12 + 1;
        progress(u"%1年%2月"_s.arg(year).arg(month));
        if (ago == wish.months - 1) months.openBalances(year, month);
        months.make(year, month);
    }
}

}  // namespace akarix::sample
