#include <QFile>
#include <algorithm>
#include <functional>
#include <set>

#include "admin/DebitCheck.h"
#include "ledger/Rows.h"
#include "month/DebitCheck.h"
#include "month/Hands.h"
#include "month/Steps.h"
#include "platform/runtime/Calendar.h"
#include "sample/SampleMasters.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/Dates.h"

namespace akarix::month {

namespace {

const QString kBillingForm = u"Seikyu_frm"_s;
const QString kFirstButton = u"Command(0)"_s;
const QString kWriteButton = u"Command(2)"_s;
const QString kReadButton = u"Command(4)"_s;
const QString kBankStatementButton = u"Command(5)"_s;
const QString kPostStatementButton = u"Command(6)"_s;

const QString kBranchBox = Ebox(17);  // of the customer

QString OnDisk(const Desk& desk, const QString& name) {
    return desk.folder.disk() + u'/' + name;
}

/// The disk's own name, as the consignor's screen has it.
QString DiskFile(const Desk& desk) {
    return OnDisk(desk, u"jiharai"_s);
}

/// The bill of the month before is what is debited in this one.
DebitClaims ClaimsOf(const Desk& desk, int bank) {
    const int before = desk.options.year * 12 + desk.options.month - 2;
    return ClaimsAfter(*gDb, bank, before / 12, before % 12 + 1);
}

/// The bank with the most to debit; 0 when none has any.
int BusiestBank(const Desk& desk) {
    int busiest = 0;
    std::size_t most = 0;
    for (int i = 0; i < sample::kBankCount; ++i) {
        const int bank = sample::BankAt(i).code;
        const std::size_t count = ClaimsOf(desk, bank).size();
        if (count > most) busiest = bank;
        most = std::max(most, count);
    }
    return busiest;
}

void RequireSaid(Desk& desk, const QString& wanted) {
    if (!desk.clerk.said().contains(wanted)) throw Failure(u"「%1」と出ません。"_s.arg(wanted));
}

QString BranchOf(std::int32_t deal) {
    return QString::number(ReadNumbers(*gDb, u"SELECT Stn FROM Deal WHERE Code=%1"_s.arg(deal))[0][0]);
}

/// From the proposed day of the second attempt to the message that the disk is done.
void WriteDisk(Desk& desk, const std::function<void()>& expectTotals) {
    desk.clerk.answerConfirm(true);
    desk.clerk.answerConfirm(true);
    expectTotals();
    desk.clerk.answerAlert();
    desk.clerk.answerAlert();
    desk.clerk.enter();
}

/// Those that akarix-admin's check of a disk finds fault with, counted from 1.
std::set<qsizetype> RecordsNamed(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw Failure(path + u" が読めません。"_s);
    std::set<qsizetype> named;
    for (const auto& departure : admin::CheckDebitFile(admin::SplitDebitRecords(file.readAll())).departures)
        named.insert(departure.record);
    return named;
}

/// The check names the broken record before the disk goes out; the customer gets his branch back.
void MendBranch(Desk& desk) {
    const auto named = RecordsNamed(DiskFile(desk));
    const int behindHeader = desk.shortBranch.claim + 2;
    if (!named.contains(behindHeader))
        throw Failure(u"検査が %1 番目のレコードを挙げません。"_s.arg(behindHeader));
    ++desk.refusedDisks;
    ChangeCustomer(desk, desk.shortBranch.deal, {{kBranchBox, desk.shortBranch.branch}});
}

}  // namespace

// Keyed as a bank's branch is, the post office's breaks its record in two.
void ShortenBranch(Desk& desk) {
    const DebitClaims claims = ClaimsOf(desk, sample::kPostOffice);
    if (claims.empty()) return;
    const auto claim = claims.size() / 2;
    desk.shortBranch = {claims[claim].deal, static_cast<int>(claim), BranchOf(claims[claim].deal)};
    ChangeCustomer(desk, desk.shortBranch.deal, {{kBranchBox, desk.shortBranch.branch.left(3)}});
}

// The screen stays open until the disk is back.
void PrintStatements(Desk& desk) {
    const int bank = BusiestBank(desk);
    OpenFromMenu(desk, 16, kBillingForm);
    const Date debitDay = DateSerial(desk.options.year, desk.options.month, kDebitDay);
    Texts typed = MonthTyped(desk.options, -1, {{Ebox(2), DateText(debitDay)}});
    if (bank != 0) typed[Ebox(5)] = QString::number(bank);
    WalkTo(desk, kFirstButton, typed);
    if (bank != 0) PrintInto(desk, kBankStatementButton, OnDisk(desk, u"bank-statement.pdf"_s));
    if (ClaimsOf(desk, sample::kPostOffice).empty()) return;
    desk.clerk.bringToFront(kBillingForm);
    PrintInto(desk, kPostStatementButton, OnDisk(desk, u"post-statement.pdf"_s));
}

void WriteRequest(Desk& desk) {
    const DebitClaims wanted = ClaimsOf(desk, sample::kPostOffice);
    if (wanted.empty()) return;
    desk.clerk.bringToFront(kBillingForm);
    desk.clerk.click(kWriteButton);
    TakeForm(desk, u"retransfer"_s, kBillingForm);
    WriteDisk(desk, [&desk] {
        desk.clerk.expect(u"Printer_frm"_s, [&desk](QWidget&) { desk.clerk.press(Qt::Key_Escape); });
    });
    MendBranch(desk);

    desk.clerk.bringToFront(kBillingForm);
    desk.clerk.click(kWriteButton);
    const QString totals = OnDisk(desk, u"total-sheet.pdf"_s);
    WriteDisk(desk, [&] { ExpectPrinter(desk, totals); });
    RequireFile(totals);
    const auto named = RecordsNamed(DiskFile(desk));
    if (!named.empty()) throw Failure(u"依頼のディスクが検査を通りません。"_s);
    const DebitFigures sums = TotalsOf(wanted);
    RequireSaid(desk, u"件数：%1\n金額：%2"_s.arg(sums.asked).arg(sums.askedYen));

    DebitClaims asked = ReadDebitFile(DiskFile(desk));
    for (DebitClaim& claim : asked)
        claim.debited = false;
    if (asked != wanted) throw Failure(u"依頼のディスクが売掛と違います。"_s);
    QFile::copy(DiskFile(desk), OnDisk(desk, u"jiharai-request"_s));
}

void ReadResult(Desk& desk) {
    if (QFile::exists(DiskFile(desk))) {
        MarkDebitFile(DiskFile(desk));
        desk.typed.debits = ReadDebitFile(DiskFile(desk));
        std::int32_t number = HighestPlus(u"SELECT MAX(Dno) AS tDno FROM Dny"_s, 1);
        for (const DebitClaim& claim : desk.typed.debits)
            if (claim.debited) desk.typed.payments[number++] = {claim.deal, claim.yen};
        desk.clerk.bringToFront(kBillingForm);
        desk.clerk.answerConfirm(true);
        desk.clerk.answerConfirm(true);
        desk.clerk.expect(u"Alert_frm"_s, [&desk](QWidget& message) {
            desk.album.take(u"debit-result"_s, {&desk.clerk.form(kBillingForm), &message});
            desk.clerk.enter();
        });
        desk.clerk.click(kReadButton);
        const DebitFigures sums = TotalsOf(desk.typed.debits);
        RequireSaid(desk, u"%1 / %2%3完了しました。"_s.arg(sums.debited)
                              .arg(sums.asked)
                              .arg(sums.debited == sums.asked ? u" 全件　"_s : u" 件　"_s));
    }
    CloseForm(desk, kBillingForm);
}

}  // namespace akarix::month
