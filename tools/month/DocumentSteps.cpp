#include <algorithm>

#include "clerk/Clerk.h"
#include "month/Desk.h"
#include "month/Hands.h"
#include "month/Options.h"
#include "month/Steps.h"
#include "month/Trade.h"
#include "platform/runtime/DateSerial.h"
#include "store/dbAccess.h"
#include "values/Dates.h"

namespace akarix::month {

namespace {

const QString slipForm = QStringLiteral("Slip_frm");
const QString paymentForm = QStringLiteral("SlipN2_frm");
const QString numberBox = QStringLiteral("ebox(0)");
const QString saveButton = QStringLiteral("Btn(2)");

QString box(const QString& name, int index) {
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}

QString ebox(int index) {
    return box(QStringLiteral("ebox"), index);
}

/// A document is saved, and the screen ready for the next.
void saveDocument(Desk& desk) {
    desk.clerk.click(saveButton);
    requireFocus(desk, numberBox);
}

// ---- sales slips

/// The new customer takes the new item at once.
Sale newcomersSale(const Desk& desk) {
    const int day = 15;
    return {desk.newCustomer,
            DateSerial(desk.options.year, desk.options.month, day),
            {goodsLine(desk.newItem, 10, desk.newItemPrice), taxLine(),
             textLine(QStringLiteral("配送・取付"), 3500), taxLine()}};
}

std::map<QString, QString> textsOf(const Sale& sale) {
    std::map<QString, QString> texts{{ebox(1), DateText(sale.day)}, {ebox(2), QString::number(sale.deal)}};
    int line = 0;
    for (const SaleLine& sold : sale.lines) {
        const QString amount = ebox(5 + 3 * line);
        if (sold.item != 0) texts[ebox(3 + 3 * line)] = QString::number(sold.item);
        if (isTax(sold)) {
            texts[amount] = QStringLiteral("*10");
        } else if (sold.item != 0) {
            texts[ebox(21 + line)] = QString::number(sold.tenths / 10.0);
        } else {
            texts[ebox(4 + 3 * line)] = sold.text;
            texts[amount] = QString::number(sold.yen);
        }
        ++line;
    }
    return texts;
}

void typeSale(Desk& desk, const Sale& sale) {
    constexpr std::size_t mostLines = 6;
    const std::size_t lines = sale.lines.size();
    const std::int32_t number = desk.clerk.text(numberBox).toInt();
    const QString end = lines < mostLines ? ebox(3 + 3 * static_cast<int>(lines)) : saveButton;
    walkTo(desk, end, textsOf(sale));
    desk.typed.slips[number] = {sale.deal, totalOf(sale)};
}

// ---- payments

void typePart(Desk& desk, int line, const PaymentPart& part) {
    requireFocus(desk, box(QStringLiteral("dKubun"), line));
    for (int i = 0; i < part.paymentClass; ++i)
        desk.clerk.down();
    desk.clerk.enter();
    desk.clerk.fill(QString::number(part.yen));
    if (!part.memo.isEmpty()) desk.clerk.type(part.memo);
    desk.clerk.enter();
}

void typePayment(Desk& desk, const Payment& payment) {
    const std::int32_t number = desk.clerk.text(numberBox).toInt();
    walkTo(desk, QStringLiteral("dKubun(0)"),
           {{ebox(1), QString::number(payment.deal)}, {ebox(2), DateText(payment.day)}});
    int line = 0;
    for (const PaymentPart& part : payment.parts)
        typePart(desk, line++, part);
    desk.typed.payments[number] = {payment.deal, totalOf(payment), payment.nextMonth};
}

/// What the customer owed and paid in the half year before stands beside the slip.
void showLastHalfYear(Desk& desk) {
    const int from = desk.options.year * 12 + desk.options.month - 1 - 6;
    desk.clerk.click(ebox(7));
    walkTo(desk, QStringLiteral("Btn(4)"),
           {{ebox(7), QString::number(from / 12)}, {ebox(8), QString::number(from % 12 + 1)}});
    desk.clerk.enter();
}

}  // namespace

void typeSlips(Desk& desk) {
    openFromMenu(desk, 0, slipForm);
    typeSale(desk, newcomersSale(desk));
    takeForm(desk, QStringLiteral("slip"), slipForm);
    saveDocument(desk);
    for (const Sale& sale : salesOf(*gDb, desk.options.year, desk.options.month)) {
        if (sale.deal == desk.newCustomer) continue;
        typeSale(desk, sale);
        saveDocument(desk);
    }
    closeForm(desk, slipForm);
}

void typeLateSlip(Desk& desk) {
    const Sale sale = lateSaleOf(*gDb, desk.options.year, desk.options.month);
    if (sale.deal == 0) return;
    openFromMenu(desk, 0, slipForm);
    typeSale(desk, sale);
    saveDocument(desk);
    ++desk.lateSlips;
    closeForm(desk, slipForm);
}

void typePayments(Desk& desk) {
    openFromMenu(desk, 2, paymentForm);
    const std::vector<Payment> payments = paymentsOf(*gDb, desk.options.year, desk.options.month);
    auto pictured = std::find_if(payments.begin(), payments.end(),
                                 [](const Payment& payment) { return payment.parts.size() > 1; });
    if (pictured == payments.end()) pictured = payments.begin();
    for (auto payment = payments.begin(); payment != payments.end(); ++payment) {
        typePayment(desk, *payment);
        if (payment == pictured) {
            showLastHalfYear(desk);
            takeForm(desk, QStringLiteral("payment"), paymentForm);
        }
        saveDocument(desk);
    }
    closeForm(desk, paymentForm);
}

}  // namespace akarix::month
