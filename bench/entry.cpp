// Daily entry on a dealer's books of many years: storing a slip and a payment against the same work on young
// books, the list of all slips, and the account of an old customer.

#include <unistd.h>
#include <QApplication>

#include "BenchApplication.h"
#include "DealerFiles.h"
#include "Documents.h"
#include "Measure.h"
#include "clerk/Clerk.h"
#include "entry/SlipN2_frm.h"
#include "entry/Slip_frm.h"
#include "entry/TorZan_frm.h"
#include "platform/forms/FlexGrid.h"
#include "platform/runtime/Literals.h"
#include "reports/RepoDaichou_frm.h"
#include "store/FieldValue.h"
#include "toolkit/Lookups.h"

namespace akarix::bench {
namespace {

constexpr int kCustomers = 10000;
constexpr int kYoungCustomers = 100;
constexpr int kRounds = 5;
constexpr int kSaves = 21;
constexpr int kOpenings = 7;
constexpr int kOldCustomer = 77;

std::int32_t CountOf(const char* table) {
    Recordset set = gDb->OpenRecordset(u"SELECT COUNT(*) AS n FROM %1"_s.arg(QLatin1String(table)));
    return LongOf(set[u"n"_s]);
}

class Desk {
 public:
    ~Desk() { clerk_.clearDesk(); }

    /// Enter on the save button, until the next document can be typed.
    Time save() {
        SetFocus(&clerk_.control(u"Btn(2)"_s));
        const Time time = Measure([this] { clerk_.enter(); });
        if (clerk_.focusedName() != u"ebox(0)") throw std::runtime_error("the screen is not ready");
        return time;
    }
    void put(const char* box, const QString& text) {
        clerk_.find<TextBox>(QString::fromLatin1(box)).SetText(text);
    }
    Clerk& clerk() { return clerk_; }

 private:
    Clerk clerk_;
};

const QString kDay = u"%1/%2/10"_s.arg(kYear).arg(kMonth);

void SaveSlips(std::vector<Time>& times) {
    Desk desk;
    OpenScreen<Slip_frm>();
    for (int customer = 1; customer <= kSaves; ++customer) {
        desk.put("ebox(1)", kDay);
        desk.put("ebox(2)", QString::number(customer));
        for (const auto& [box, text] :
             std::initializer_list<std::pair<const char*, const char*>>{{"ebox(3)", "1"},
                                                                        {"ebox(21)", "2"},
                                                                        {"ebox(27)", "550"},
                                                                        {"ebox(5)", "1,100"},
                                                                        {"ebox(6)", "1"},
                                                                        {"ebox(8)", "110"}})
            desk.put(box, QString::fromLatin1(text));
        times.push_back(desk.save());
    }
}

void SavePayments(std::vector<Time>& times) {
    Desk desk;
    OpenScreen<SlipN2_frm>();
    for (int customer = 1; customer <= kSaves; ++customer) {
        desk.put("ebox(1)", QString::number(customer));
        desk.put("ebox(2)", kDay);
        desk.put("eGaku(0)", u"3,000"_s);
        desk.put("eGaku(1)", u"440"_s);
        times.push_back(desk.save());
    }
}

/// From the click on the lookup picture until the list has been painted and takes a click.
Time OpenSlipList() {
    Desk desk;
    OpenScreen<Slip_frm>();
    Clock::time_point start;
    const double processor = ProcessorMilliseconds();
    Time time;
    desk.clerk().expect(u"HelpSlip_frm"_s, [&](QWidget&) {
        desk.clerk().settle();
        time = {MillisecondsSince(start), ProcessorMilliseconds() - processor};
        desk.clerk().clickCell(desk.clerk().find<FlexGrid>(u"List"_s), 1, 0);
    });
    start = Clock::now();
    desk.clerk().click(u"F6(0)"_s);
    if (desk.clerk().text(u"ebox(0)"_s).isEmpty()) throw std::runtime_error("nothing was picked");
    return time;
}

/// From Enter on the customer until his account has been painted.
Time OpenAccount() {
    Desk desk;
    OpenScreen<RepoDaichou_frm>();
    desk.put("ebox(0)", QString::number(kYear - 10));
    desk.put("ebox(2)", QString::number(kOldCustomer));
    SetFocus(&desk.clerk().control(u"ebox(2)"_s));
    const Time time = Measure([&] { desk.clerk().enter(); });
    if (desk.clerk().find<FlexGrid>(u"List"_s).Rows() < 120)
        throw std::runtime_error("the account is not whole");
    return time;
}

/// The opening balances of every customer: showing them, Enter on one, and storing them all.
void BenchBalances() {
    constexpr int kManyCustomers = 30000;
    constexpr int kEnters = 99;
    const DealerFiles files(kManyCustomers, 0);
    Desk desk;
    OpenScreen<TorZan_frm>();
    const auto showMonth = [&] {
        desk.put("ebox(0)", QString::number(kYear));
        desk.put("ebox(1)", QString::number(kMonth));
        desk.clerk().click(u"Btn(2)"_s);
    };
    std::vector<Time> shown;
    std::vector<Time> saved;
    for (int i = 0; i < 3; ++i) {
        shown.push_back(Measure(showMonth));
        saved.push_back(Measure([&] { desk.clerk().click(u"Btn(10)"_s); }));
    }
    showMonth();
    std::vector<Time> enters;
    enters.reserve(kEnters);
    for (int i = 0; i < kEnters; ++i)
        enters.push_back(Measure([&] { desk.clerk().enter(); }));
    PrintRow("opening balances of 30,000, shown", Median(shown), std::nullopt, std::nullopt);
    PrintRow("opening balances of 30,000, Enter", Median(enters), std::nullopt, Under(5));
    PrintRow("opening balances of 30,000, stored", Median(saved), std::nullopt, std::nullopt);
    if (CountOf("TtoD") != kManyCustomers) throw std::runtime_error("balances are missing");
}

template <class Work>
Time MedianOf(Work&& work) {
    std::vector<Time> times;
    times.reserve(kOpenings);
    for (int i = 0; i < kOpenings; ++i)
        times.push_back(work());
    return Median(times);
}

void BenchBooks() {
    DealerFiles files(kCustomers, 0);
    const auto books = [&](const char* name, int lastCustomer) {
        files.copy(name);
        files.open(name);
        Documents::fillMonths(lastCustomer);
        const int lines = lastCustomer * Documents::kMonths * Documents::kLines;
        if (CountOf("Dud") != lines || CountOf("Dny") != lines) throw std::runtime_error("lines are missing");
    };
    books("young", kYoungCustomers);
    books("old", kCustomers);
    Race slips;
    Race payments;
    // In turns, on books that the disk has taken whole.
    for (int round = 0; round < kRounds; ++round) {
        ::sync();
        files.open("young");
        SaveSlips(slips.peer);
        SavePayments(payments.peer);
        files.open("old");
        SaveSlips(slips.product);
        SavePayments(payments.product);
    }
    PrintRow("storing a slip, 300,000 lines", Median(slips.product), std::nullopt, Under(10));
    PrintRow("storing a slip, 300,000 lines (peer: 3,000)", slips, Times(1.5));
    PrintRow("storing a payment, 300,000 lines", Median(payments.product), std::nullopt, Under(10));
    PrintRow("storing a payment, 300,000 lines (peer: 3,000)", payments, Times(1.5));
    PrintRow("list of 100,000 slips until painted", MedianOf(&OpenSlipList), std::nullopt, std::nullopt);
    Documents::fillYears(kOldCustomer);
    PrintRow("account of ten years until painted", MedianOf(&OpenAccount), std::nullopt, Under(100));
}

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    using namespace akarix::bench;
    const BenchApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    PrintHead();
    BenchBooks();
    BenchBalances();
    return 0;
}
