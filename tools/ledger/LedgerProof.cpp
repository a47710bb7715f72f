#include "ledger/LedgerProof.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "ledger/Rows.h"
#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

using Code = std::int32_t;

/// The documents of one customer and month: their sum, and each one's amount by its number.
struct Documents {
    std::int64_t sum = 0;
    std::int64_t newest = 0;  ///< day of the last one
    std::int64_t debited = 0;
    std::map<std::int64_t, std::int64_t> amounts;
};
using DocumentsOf = std::map<Code, Documents>;

struct LedgerRow {
    std::int64_t zenkaiGaku = 0;
    std::int64_t gGaku = 0;
    std::int64_t uGaku = 0;
    std::int64_t gaku = 0;
    std::int64_t nGaku = 0;
    bool setByHand = false;

    std::int64_t carriedOut() const { return zenkaiGaku + gGaku + uGaku - nGaku; }
    /// A run leaves its row in this state; a change of a single figure does not.
    bool asTheRunLeaves() const { return gaku == gGaku + uGaku; }
};

/// What a customer's latest row hands on.
struct Carried {
    BillingMonth from;
    std::int64_t balance = 0;
    std::vector<std::int64_t> sales;
    std::vector<std::int64_t> payments;
};

constexpr std::int64_t kByDebit = 2;  // payment class

DocumentsOf ReadDocuments(Database& db, const QString& columns, const QString& table, BillingMonth month) {
    DocumentsOf documents;
    for (const auto& row : ReadNumbers(db, u"SELECT %1 FROM %2"_s.arg(columns, table) + WhereMonth(month))) {
        Documents& kept = documents[static_cast<Code>(row[0])];
        kept.sum += row[1];
        if (row.size() == 2) continue;
        kept.amounts[row[2]] += row[1];
        kept.newest = std::max(kept.newest, row[3]);
        if (row.size() > 4 && row[4] == kByDebit) kept.debited += row[1];
    }
    return documents;
}

std::map<Code, LedgerRow> ReadLedger(Database& db, BillingMonth month) {
    std::map<Code, LedgerRow> ledger;
    for (const auto& row : ReadNumbers(
             db, u"SELECT Deal,ZenkaiGaku,GGaku,UGaku,Gaku,NGaku,SyokiFlg FROM TtoD"_s + WhereMonth(month)))
        ledger[static_cast<Code>(row[0])] = {row[1], row[2], row[3], row[4], row[5], row[6] != 0};
    return ledger;
}

const Documents* Find(const DocumentsOf& documents, Code deal) {
    const auto found = documents.find(deal);
    return found == documents.end() ? nullptr : &found->second;
}

std::vector<std::int64_t> AmountsOf(const Documents* documents) {
    std::vector<std::int64_t> amounts;
    if (documents != nullptr)
        for (const auto& [number, amount] : documents->amounts)
            amounts.push_back(amount);
    return amounts;
}

/// Whether some of the amounts, one at least, add up to the wanted sum.
bool SomeAddUpTo(const std::vector<std::int64_t>& amounts, std::int64_t wanted) {
    constexpr std::size_t mostTried = 12;  // a customer's month has one or two
    const std::size_t count = std::min(amounts.size(), mostTried);
    for (unsigned chosen = 1; chosen < 1u << count; ++chosen) {
        std::int64_t sum = 0;
        for (std::size_t i = 0; i < count; ++i)
            sum += (chosen >> i & 1u) != 0 ? amounts[i] : 0;
        if (sum == wanted) return true;
    }
    return false;
}

/// Walks the months from the first to the last with each customer's balance in hand.
class Walk {
 public:
    Walk(Database& db, LedgerProof& proof) : db_(db), proof_(proof) {
        for (const auto& row : ReadNumbers(db, u"SELECT Code FROM Deal"_s))
            customers_.insert(static_cast<Code>(row[0]));
        for (const auto& row : ReadNumbers(db, u"SELECT Nen,Tuki,Hizuke FROM Syukei"_s))
            runs_[{static_cast<int>(row[0]), static_cast<int>(row[1])}] = row[2];
    }

    std::set<BillingMonth> months() const {
        std::set<BillingMonth> all;
        for (const char16_t* table : {u"TtoD", u"Dgd", u"Dud", u"Dny"})
            for (const auto& row : ReadNumbers(
                     db_,
                     u"SELECT Nendo,Getudo FROM %1 GROUP BY Nendo,Getudo"_s.arg(QString::fromUtf16(table))))
                all.insert({static_cast<int>(row[0]), static_cast<int>(row[1])});
        return all;
    }

    void prove(BillingMonth month) {
        month_ = month;
        run_ = runOf(month);
        gas_ = ReadDocuments(db_, u"Deal,Gaku"_s, u"Dgd"_s, month);
        sales_ = ReadDocuments(db_, u"Deal,Gaku,Dno,Hizuke"_s, u"Dud"_s, month);
        payments_ = ReadDocuments(db_, u"Deal,Gaku,Dno,Hizuke,Kubun"_s, u"Dny"_s, month);
        const std::map<Code, LedgerRow> ledger = ReadLedger(db_, month);
        if (proof_.rows == 0) proof_.first = month;
        if (run_) {
            ++proof_.months;
            proveRowsExist(ledger);
        } else {
            proof_.notYetBilled.push_back(month);
        }
        for (const auto& [deal, row] : ledger) {
            ++proof_.rows;
            if (run_) {
                proveBilled(deal, row);
                proveCarriedIn(deal, row);
            }
            provePaid(deal, row);
            carried_[deal] = {month, row.carriedOut(), AmountsOf(Find(sales_, deal)),
                              AmountsOf(Find(payments_, deal))};
        }
        for (const DocumentsOf* source : {&gas_, &sales_, &payments_})
            for (const auto& [deal, documents] : *source)
                documented_.insert(deal);
    }

 private:
    std::optional<std::int64_t> runOf(BillingMonth month) const {
        const auto run = runs_.find(month);
        return run == runs_.end() ? std::nullopt : std::optional(run->second);
    }

    void note(Code deal, const char16_t* column, std::int64_t expected, std::int64_t found, Cause cause) {
        if (expected == found) return;
        proof_.findings.push_back({{deal, month_, QString::fromUtf16(column), expected, found}, cause});
    }

    void proveRowsExist(const std::map<Code, LedgerRow>& ledger) {
        std::set<Code> due;
        for (const DocumentsOf* source : {&gas_, &sales_, &payments_})
            for (const auto& [deal, documents] : *source)
                due.insert(deal);
        for (const Code deal : due)
            if (!ledger.contains(deal)) note(deal, u"行", 10000, 0, Cause::NotBilledAgain);
    }

    void proveBilled(Code deal, const LedgerRow& row) {
        const Documents* gas = Find(gas_, deal);
        const Documents* sold = Find(sales_, deal);
        const bool isNewer = sold != nullptr && sold->newest > *run_;
        const Cause cause = row.asTheRunLeaves() || isNewer ? Cause::NotBilledAgain : Cause::Unknown;
        if (gas != nullptr)
            note(deal, u"GGaku", gas->sum, row.gGaku, cause);
        else
            note(deal, u"GGaku", 0, row.gGaku, Cause::SourceGone);
        note(deal, u"UGaku", sold != nullptr ? sold->sum : 0, row.uGaku, cause);
        note(deal, u"Gaku", row.gGaku + row.uGaku, row.gaku, Cause::Unknown);
    }

    void provePaid(Code deal, const LedgerRow& row) {
        const Documents* paid = Find(payments_, deal);
        if (paid == nullptr) return note(deal, u"NGaku", 0, row.nGaku, Cause::SourceGone);
        Cause cause = Cause::Unknown;
        if (paid->debited != 0 && SomeAddUpTo({paid->debited}, row.nGaku))
            cause = Cause::DebitReadBack;
        else if (run_ && paid->newest > *run_)
            cause = Cause::PaidAfterBilling;
        note(deal, u"NGaku", paid->sum, row.nGaku, cause);
    }

    void proveCarriedIn(Code deal, const LedgerRow& row) {
        const auto before = carried_.find(deal);
        if (row.setByHand) {
            if (before == carried_.end())
                ++proof_.openings;
            else
                note(deal, u"ZenkaiGaku", before->second.balance, row.zenkaiGaku, Cause::HandSet);
            return;
        }
        // The run carries for the customers it knows.
        if (!customers_.contains(deal)) return;
        if (before == carried_.end()) {
            if (row.zenkaiGaku == 0) return;
            // A purge takes the documents with the rows.
            if (documented_.contains(deal))
                return note(deal, u"ZenkaiGaku", 0, row.zenkaiGaku, Cause::Unknown);
            if (proof_.first == month_)
                ++proof_.unproved;
            else
                proof_.purged.push_back(deal);
            return;
        }
        const Carried& carried = before->second;
        if (carried.balance == row.zenkaiGaku) return;
        note(deal, u"ZenkaiGaku", carried.balance, row.zenkaiGaku, causeOfStaleBalance(carried, row));
    }

    Cause causeOfStaleBalance(const Carried& carried, const LedgerRow& row) const {
        const std::int64_t excess = row.zenkaiGaku - carried.balance;
        if (SomeAddUpTo(carried.payments, excess)) return Cause::PaidAfterBilling;
        const auto earlierRun = runOf(carried.from);
        const bool ranLater = earlierRun && *earlierRun > *run_;
        return ranLater || SomeAddUpTo(carried.sales, -excess) ? Cause::NotBilledAgain : Cause::Unknown;
    }

    Database& db_;
    LedgerProof& proof_;
    std::set<Code> customers_;
    std::map<BillingMonth, std::int64_t> runs_;
    std::map<Code, Carried> carried_;
    std::set<Code> documented_;  ///< who has documents in an earlier month

    BillingMonth month_;
    std::optional<std::int64_t> run_;  ///< day of the month's last run
    DocumentsOf gas_;
    DocumentsOf sales_;
    DocumentsOf payments_;
};

}  // namespace

LedgerProof ProveLedger(Database& db, const std::function<void(BillingMonth)>& progress) {
    LedgerProof proof;
    Walk walk(db, proof);
    for (const BillingMonth month : walk.months()) {
        progress(month);
        walk.prove(month);
    }
    return proof;
}

}  // namespace akarix
