#include <QFile>
#include <algorithm>
#include <functional>
#include <set>

#include "admin/DebitCheck.h"
#include "clerk/Clerk.h"
#include "ledger/Rows.h"
#include "month/Album.h"
#include "month/DebitCheck.h"
#include "month/Desk.h"
#include "month/Failure.h"
#include "month/Hands.h"
#include "month/Options.h"
#include "month/Steps.h"
#include "month/WorkFolder.h"
#include "platform/forms/Form.h"
#include "platform/runtime/DateSerial.h"
#include "sample/SampleMasters.h"
#include "store/Lookup.h"
#include "store/dbAccess.h"
#include "values/Dates.h"

namespace akarix::month {

namespace {

const QString billingForm = QStringLiteral("Seikyu_frm");
const QString firstButton = QStringLiteral("Command(0)");
const QString writeButton = QStringLiteral("Command(2)");
const QString readButton = QStringLiteral("Command(4)");
const QString bankStatementButton = QStringLiteral("Command(5)");
const QString postStatementButton = QStringLiteral("Command(6)");

const QString branchBox = QStringLiteral("ebox(17)");  // of the customer

QString onDisk(const Desk& desk, const QString& name) {
    return desk.folder.disk() + u'/' + name;
}

/// The disk's own name, as the consignor's screen has it.
QString diskFile(const Desk& desk) {
    return onDisk(desk, QStringLiteral("jiharai"));
}

/// The bill of the month before is what is debited in this one.
DebitClaims claimsOf(const Desk& desk, int bank) {
    const int before = desk.options.year * 12 + desk.options.month - 2;
    return claimsAfter(*gDb, bank, before / 12, before % 12 + 1);
}

/// The bank with the most to debit; 0 when none has any.
int busiestBank(const Desk& desk) {
    int busiest = 0;
    std::size_t most = 0;
    for (int i = 0; i < sample::bankCount; ++i) {
        const int bank = sample::bankAt(i).code;
        const std::size_t count = claimsOf(desk, bank).size();
        if (count > most) busiest = bank;
        most = std::max(most, count);
    }
    return busiest;
}

/// A consignor is looked up, walked through and saved as it stands.
void keepConsignor(Desk& desk, int button, const QString& form, int code, const QString& picture) {
    openFromMenu(desk, button, form);
    walkTo(desk, QStringLiteral("Btn(2)"), {{QStringLiteral("ebox(0)"), QString::number(code)}});
    takeForm(desk, picture, form);
    desk.clerk.enter();
    closeForm(desk, form);
}

void requireSaid(Desk& desk, const QString& wanted) {
    if (!desk.clerk.said().contains(wanted)) {
        throw Failure(QStringLiteral("「%1」と出ません。").arg(wanted));
    }
}

QString branchOf(std::int32_t deal) {
    return QString::number(
        readNumbers(*gDb, QStringLiteral("SELECT Stn FROM Deal WHERE Code=%1").arg(deal))[0][0]);
}

/// From the proposed day of the second attempt to the message that the disk is done.
void writeDisk(Desk& desk, const std::function<void()>& expectTotals) {
    desk.clerk.answerConfirm(true);
    desk.clerk.answerConfirm(true);
    expectTotals();
    desk.clerk.answerAlert();
    desk.clerk.answerAlert();
    desk.clerk.enter();
}

/// Those that akarix-admin's check of a disk finds fault with, counted from 1.
std::set<qsizetype> recordsNamed(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw Failure(path + QStringLiteral(" が読めません。"));
    std::set<qsizetype> named;
    for (const auto& departure : admin::CheckDebitFile(admin::SplitDebitRecords(file.readAll())).departures)
        named.insert(departure.record);
    return named;
}

/// The check names the broken record before the disk goes out; the customer gets his branch back.
void mendBranch(Desk& desk) {
    const auto named = recordsNamed(diskFile(desk));
    const int behindHeader = desk.shortBranch.claim + 2;
    if (!named.contains(behindHeader)) {
        throw Failure(QStringLiteral("検査が %1 番目のレコードを挙げません。").arg(behindHeader));
    }
    ++desk.refusedDisks;
    changeCustomer(desk, desk.shortBranch.deal, {{branchBox, desk.shortBranch.branch}});
}

}  // namespace

void keepConsignors(Desk& desk) {
    keepConsignor(desk, 14, QStringLiteral("MstBnk_frm"), sample::bankAt(0).code,
                  QStringLiteral("bank-consignor"));
    keepConsignor(desk, 15, QStringLiteral("MstYubin_frm"), sample::postOffice,
                  QStringLiteral("post-consignor"));
}

// Keyed as a bank's branch is, the post office's breaks its record in two.
void shortenBranch(Desk& desk) {
    const DebitClaims claims = claimsOf(desk, sample::postOffice);
    if (claims.empty()) return;
    const auto claim = claims.size() / 2;
    desk.shortBranch = {claims[claim].deal, static_cast<int>(claim), branchOf(claims[claim].deal)};
    changeCustomer(desk, desk.shortBranch.deal, {{branchBox, desk.shortBranch.branch.left(3)}});
}

// The screen stays open until the disk is back.
void printStatements(Desk& desk) {
    const int bank = busiestBank(desk);
    openFromMenu(desk, 16, billingForm);
    std::map<QString, QString> typed = monthTyped(desk.options, -1);
    typed[QStringLiteral("ebox(2)")] = DateText(DateSerial(desk.options.year, desk.options.month, debitDay));
    if (bank != 0) typed[QStringLiteral("ebox(5)")] = QString::number(bank);
    walkTo(desk, firstButton, typed);
    if (bank != 0) {
        printTo(desk, bankStatementButton, onDisk(desk, QStringLiteral("bank-statement.pdf")));
    }
    if (claimsOf(desk, sample::postOffice).empty()) return;
    desk.clerk.bringToFront(billingForm);
    printTo(desk, postStatementButton, onDisk(desk, QStringLiteral("post-statement.pdf")));
}

void writeRequest(Desk& desk) {
    const DebitClaims wanted = claimsOf(desk, sample::postOffice);
    if (wanted.empty()) return;
    desk.clerk.bringToFront(billingForm);
    desk.clerk.click(writeButton);
    takeForm(desk, QStringLiteral("retransfer"), billingForm);
    writeDisk(desk, [&desk] {
        desk.clerk.expect(QStringLiteral("Printer_frm"),
                          [&desk](QWidget&) { desk.clerk.press(Qt::Key_Escape); });
    });
    mendBranch(desk);

    desk.clerk.bringToFront(billingForm);
    desk.clerk.click(writeButton);
    const QString totals = onDisk(desk, QStringLiteral("total-sheet.pdf"));
    writeDisk(desk, [&] { expectPrinter(desk, totals); });
    requireFile(totals);
    const auto named = recordsNamed(diskFile(desk));
    if (!named.empty()) throw Failure(QStringLiteral("依頼のディスクが検査を通りません。"));
    const DebitFigures sums = totalsOf(wanted);
    requireSaid(desk, QStringLiteral("件数：%1\n金額：%2").arg(sums.asked).arg(sums.askedYen));

    DebitClaims asked = readDebitFile(diskFile(desk));
    for (DebitClaim& claim : asked)
        claim.debited = false;
    if (asked != wanted) throw Failure(QStringLiteral("依頼のディスクが売掛と違います。"));
    QFile::copy(diskFile(desk), onDisk(desk, QStringLiteral("jiharai-request")));
}

void readResult(Desk& desk) {
    if (QFile::exists(diskFile(desk))) {
        markDebitFile(diskFile(desk));
        desk.typed.debits = readDebitFile(diskFile(desk));
        std::int32_t number = HighestPlus(QStringLiteral("SELECT MAX(Dno) AS tDno FROM Dny"), 1);
        for (const DebitClaim& claim : desk.typed.debits) {
            if (claim.debited) desk.typed.payments[number++] = {claim.deal, claim.yen};
        }
        desk.clerk.bringToFront(billingForm);
        desk.clerk.answerConfirm(true);
        desk.clerk.answerConfirm(true);
        desk.clerk.expect(QStringLiteral("Alert_frm"), [&desk](QWidget& message) {
            desk.album.take(QStringLiteral("debit-result"), {&desk.clerk.form(billingForm), &message});
            desk.clerk.enter();
        });
        desk.clerk.click(readButton);
        const DebitFigures sums = totalsOf(desk.typed.debits);
        requireSaid(
            desk, QStringLiteral("%1 / %2%3完了しました。")
                      .arg(sums.debited)
                      .arg(sums.asked)
                      .arg(sums.debited == sums.asked ? QStringLiteral(" 全件　") : QStringLiteral(" 件　")));
    }
    closeForm(desk, billingForm);
}

}  // namespace akarix::month
