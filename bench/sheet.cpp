// The reading sheet: opening a month for the first time and again, against the same rows written and read by
// hand, and Enter on a reading until the next cell can be typed into, for three sizes of dealer.

#include <QApplication>

#include "BenchApplication.h"
#include "DealerFiles.h"
#include "Measure.h"
#include "PeerSheet.h"
#include "clerk/Clerk.h"
#include "entry/SlipG_frm.h"
#include "platform/runtime/Literals.h"

namespace akarix::bench {
namespace {

constexpr int kNextMonth = kMonth + 1;
constexpr int kDay = 20;
constexpr int kMonths = 3;
constexpr int kOpenings = 5;
constexpr int kReadings = 300;

class Sheet {
 public:
    Sheet() {
        OpenScreen<SlipG_frm>();
        put("ebox(0)", kYear);
        put("ebox(1)", kNextMonth);
        put("ebox(2)", kDay);
    }
    ~Sheet() { clerk_.clearDesk(); }

    void show() { clerk_.click("Command1"); }
    int rows() { return grid().Rows() - 1; }

    /// Enter alone is timed; the figure is typed before.
    Time confirmReading() {
        const int row = grid().Row();
        clerk_.type(u"12345.6"_s);
        const Time time = Measure([this] { clerk_.enter(); });
        if (grid().Row() != row + 1 || clerk_.focusedName() != u"tBox")
            throw std::runtime_error("the next cell is not ready");
        return time;
    }

 private:
    void put(const char* box, int value) {
        clerk_.find<TextBox>(QString::fromLatin1(box)).SetText(QString::number(value));
    }
    FlexGrid& grid() { return clerk_.find<FlexGrid>(u"List"_s); }

    Clerk clerk_;
};

void BenchOpening() {
    constexpr int kCustomers = 10000;
    DealerFiles files(kCustomers, kMonths);
    Race first;
    Race again;
    for (int i = 0; i < kOpenings; ++i) {
        files.copy("product");
        files.open("product");
        {
            Sheet sheet;
            for (Race* race : {&first, &again})
                race->product.push_back(Measure([&] { sheet.show(); }));
            if (sheet.rows() != kCustomers) throw std::runtime_error("rows are missing");
        }
        files.copy("peer");
        PeerStore store(files.path("peer"));
        PeerSheet peer(store);
        first.peer.push_back(Measure([&] {
            peer.open(kYear, kNextMonth, kDay);
            peer.read(kYear, kNextMonth);
        }));
        again.peer.push_back(Measure([&] { peer.read(kYear, kNextMonth); }));
    }
    PrintRow("reading sheet, 10,000 rows, first time", first, Times(3));
    PrintRow("reading sheet, 10,000 rows, again", again, Times(3));
}

void BenchEnter(int customers, const char* work) {
    const DealerFiles files(customers, 1);
    Sheet sheet;
    sheet.show();
    std::vector<Time> enters;
    enters.reserve(kReadings);
    // The smallest sheet must not come to its end.
    for (int i = 0; i < std::min(kReadings, customers) - 1; ++i)
        enters.push_back(sheet.confirmReading());
    PrintRow(work, Median(enters), std::nullopt, Under(5));
}

}  // namespace
}  // namespace akarix::bench

int main(int argc, char** argv) {
    using namespace akarix::bench;
    const BenchApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    PrintHead();
    BenchOpening();
    BenchEnter(300, "Enter on a reading, sheet of 300");
    BenchEnter(10000, "Enter on a reading, sheet of 10,000");
    BenchEnter(30000, "Enter on a reading, sheet of 30,000");
    return 0;
}
