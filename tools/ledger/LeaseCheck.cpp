#include "ledger/LeaseCheck.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <tuple>

#include "ledger/Rows.h"
#include "platform/dao/Database.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

using Code = std::int32_t;

struct Thing {
    const char16_t* line;
    const char16_t* mark;  ///< the customer's column
};
constexpr std::array<Thing, 2> kThings{{{u"ACUリース代", u"ACU"}, {u"警報機リース代", u"Keihou"}}};

QString LineOf(std::size_t thing) {
    return QString::fromUtf16(kThings[thing].line);
}

using PerThing = std::array<int, kThings.size()>;

/// A customer's lease slips of one month.
struct Slips {
    std::set<Code> numbers;
    PerThing lines{};
    QStringList unknown;

    Code number() const { return numbers.empty() ? 0 : *numbers.begin(); }
};

struct MonthOf {
    BillingMonth month;
    Slips slips;
};

class Walk {
 public:
    explicit Walk(Database& db) : db_(db) {
        for (std::size_t i = 0; i < kThings.size(); ++i) {
            const QString sql = u"SELECT Code FROM Deal WHERE %1=1"_s;
            for (const auto& row : ReadNumbers(db, sql.arg(QString::fromUtf16(kThings[i].mark))))
                ++marks_[static_cast<Code>(row[0])][i];
        }
        for (const auto& row : ReadNumbers(db, u"SELECT Nen,Tuki FROM Syukei"_s))
            billed_.insert({static_cast<int>(row[0]), static_cast<int>(row[1])});
    }

    std::vector<LeaseFinding> run() {
        for (const BillingMonth month : billed_)
            read(month);
        for (const auto& [deal, months] : months_) {
            for (std::size_t i = 0; i < kThings.size(); ++i)
                judgeCourse(deal, months, i);
            for (const MonthOf& entry : months)
                judgeSlips(deal, entry);
        }
        return std::move(findings_);
    }

 private:
    void read(BillingMonth month) {
        const QString ofMonth = WhereMonth(month);
        std::map<Code, Slips> slips;
        Recordset lines =
            db_.OpenRecordset(u"SELECT Deal,Dno,HinNamae FROM Dud"_s + ofMonth + u" AND CreateAuto=1"_s);
        for (; !lines.Eof(); lines.MoveNext()) {
            const auto number = [&lines](int field) {
                const Variant value = lines.Fields(field).Value();
                const Code* code = value.If<Code>();
                return code != nullptr ? *code : 0;
            };
            const Variant name = lines.Fields(2).Value();
            const QString* text = name.If<QString>();
            add(slips[number(0)], month, number(0), number(1), text != nullptr ? *text : QString());
        }
        lines.Close();
        for (const auto& row : ReadNumbers(db_, u"SELECT Deal FROM TtoD"_s + ofMonth)) {
            const auto deal = static_cast<Code>(row[0]);
            const auto found = slips.find(deal);
            const bool everLeased = months_.contains(deal) || marks_.contains(deal);
            if (found != slips.end() || everLeased)
                months_[deal].push_back({month, found != slips.end() ? found->second : Slips()});
        }
    }

    void add(Slips& slips, BillingMonth month, Code deal, Code number, const QString& name) {
        slips.numbers.insert(number);
        owners_[number].insert({month, deal});
        for (std::size_t i = 0; i < kThings.size(); ++i) {
            if (name == LineOf(i)) {
                ++slips.lines[i];
                return;
            }
        }
        slips.unknown += name;
    }

    /// A lease has a beginning and at most one end. Whoever has the mark leases on; his first slip is due in
    /// the last month.
    void judgeCourse(Code deal, const std::vector<MonthOf>& months, std::size_t thing) {
        const auto has = [&](std::size_t at) {
            return at < months.size() && months[at].slips.lines[thing] > 0;
        };
        const auto marks = marks_.find(deal);
        const bool isMarked = marks != marks_.end() && marks->second[thing] != 0;
        const std::size_t none = months.size();
        std::size_t first = none;
        std::size_t last = none;
        for (std::size_t at = 0; at < none; ++at) {
            if (!has(at)) continue;
            first = std::min(first, at);
            last = at;
        }
        if (isMarked) {
            first = std::min(first, none - 1);
            last = none - 1;
        }
        if (first == none) return;
        for (std::size_t at = first; at <= last; ++at)
            if (!has(at)) note(deal, months[at], LeaseFault::Missing, LineOf(thing));
        // Who has ended a lease keeps his slips. One alone in the first month may be the end of a long row,
        // unless another mark shows that the slip is still made anew with each run.
        const bool isTold = months[first].month != *billed_.begin() || marks != marks_.end();
        if (!isMarked && first == last && isTold)
            note(deal, months[first], LeaseFault::NotLeased, LineOf(thing));
    }

    void judgeSlips(Code deal, const MonthOf& entry) {
        const Slips& slips = entry.slips;
        for (const QString& name : slips.unknown)
            note(deal, entry, LeaseFault::UnknownLine, name);
        for (const Code number : slips.numbers)
            if (owners_[number].size() > 1) note(deal, entry, LeaseFault::NumberShared, {});
        if (slips.numbers.size() > 1) return note(deal, entry, LeaseFault::SlipDoubled, {});
        for (std::size_t i = 0; i < kThings.size(); ++i)
            if (slips.lines[i] > 1) note(deal, entry, LeaseFault::LineDoubled, LineOf(i));
    }

    void note(Code deal, const MonthOf& entry, LeaseFault fault, const QString& line) {
        findings_.push_back({deal, entry.month, fault, line, entry.slips.number()});
    }

    Database& db_;
    std::map<Code, PerThing> marks_;  ///< of today
    std::set<BillingMonth> billed_;
    std::map<Code, std::vector<MonthOf>> months_;  ///< of customers who lease, from the first slip or mark on
    std::map<Code, std::set<std::pair<BillingMonth, Code>>> owners_;  ///< of a slip number
    std::vector<LeaseFinding> findings_;
};

}  // namespace

std::vector<LeaseFinding> CheckLeases(Database& db, BillingMonth from) {
    std::vector<LeaseFinding> findings = Walk(db).run();
    std::erase_if(findings, [from](const LeaseFinding& f) { return f.month < from; });
    std::stable_sort(findings.begin(), findings.end(), [](const LeaseFinding& a, const LeaseFinding& b) {
        return std::tie(a.month, a.deal) < std::tie(b.month, b.deal);
    });
    return findings;
}

}  // namespace akarix
