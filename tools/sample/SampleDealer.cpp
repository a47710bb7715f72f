#include "sample/SampleDealer.h"

#include "platform/jet/Action.h"
#include "sample/SampleMasters.h"
#include "sample/SampleMonth.h"

namespace akarix::sample {

void FillSampleDealer(const Wish& wish, const Progress& progress) {
    Dice dice(0x414B41524958u);
    std::vector<Customer> customers;
    {
        const Action grouped;
        progress(QStringLiteral("台帳と得意先"));
        fillMasters();
        customers = fillCustomers(wish.customers, dice);
    }
    MonthMaker months(customers, dice);
    for (int ago = wish.months - 1; ago >= 0; --ago) {
        const Action grouped;
        const int index = wish.untilYear * 12 + wish.untilMonth - 1 - ago;
        const int year = index / 12;
        const int month = index % 12 + 1;
        progress(QStringLiteral("%1年%2月").arg(year).arg(month));
        if (ago == wish.months - 1) months.openBalances(year, month);
        months.make(year, month);
    }
}

}  // namespace akarix::sample
