// The billing run of a month for 10,000 customers, against the same statements prepared by hand. A month
// that was never billed, and the same month once more.

#include <QCoreApplication>

#include "DealerFiles.h"
#include "Measure.h"
#include "PeerBilling.h"
#include "billing/Tto.h"
#include "platform/runtime/Calendar.h"
#include "platform/runtime/Literals.h"

namespace akarix::bench {
namespace {

constexpr int kCustomers = 10000;
constexpr int kMonths = 4;
constexpr int kRuns = 7;

/// The last month as it stands before its first billing.
void Unbill() {
    const QString month = u" WHERE Nendo=%1 AND Getudo=%2"_s.arg(kYear).arg(kMonth);
    gDb->Execute(u"DELETE FROM TtoD"_s + month);
    gDb->Execute(u"DELETE FROM Dud"_s + month + u" AND CreateAuto=1"_s);
    gDb->Execute(u"DELETE FROM Syukei WHERE Nen=%1 AND Tuki=%2"_s.arg(kYear).arg(kMonth));
}

/// Everything the run writes, row by row.
QStringList Written(const QString& path) {
    PeerStore store(path);
    QStringList rows;
    for (const char* sql : {"SELECT * FROM TtoD ORDER BY Deal,Nendo,Getudo",
                            "SELECT * FROM Dud ORDER BY Dno,Eda", "SELECT * FROM Syukei ORDER BY Nen,Tuki"}) {
        PeerStatement all(store, sql);
        while (all.next()) {
            QString row;
            for (int column = 0; column < all.columns(); ++column)
                row += all.text(column) + u'|';
            rows.append(row);
        }
    }
    return rows;
}

int Run() {
    DealerFiles files(kCustomers, kMonths);
    Unbill();
    const Date creation = DateSerial(kYear, kMonth + 1, 0);
    Race first;
    Race again;
    for (int i = 0; i < kRuns; ++i) {
        files.copy("product");
        files.open("product");
        for (Race* race : {&first, &again}) {
            race->product.push_back(Measure([&] {
                const Action grouped;
                BuildMonthLedger({kYear, kMonth}, creation);
                CarryForwardMonth({kYear, kMonth});
            }));
        }
        files.copy("peer");
        PeerStore store(files.path("peer"));
        for (Race* race : {&first, &again})
            race->peer.push_back(Measure([&] { PeerBilling(store).run(kYear, kMonth, creation); }));
    }
    if (Written(files.path("product")) != Written(files.path("peer"))) {
        std::fputs("the two ledgers differ\n", stderr);
        return 1;
    }
    PrintHead();
    PrintRow("billing run, 10,000 customers, first time", first, Times(2));
    PrintRow("billing run, 10,000 customers, again", again, Times(2));
    return 0;
}

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return akarix::bench::Run();
}
