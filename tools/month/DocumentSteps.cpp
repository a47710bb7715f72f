#include <algorithm>

#include "month/Hands.h"
#include "month/Steps.h"
#include "month/Trade.h"
#include "platform/runtime/Calendar.h"
#include "store/dbAccess.h"
#include "values/Dates.h"

namespace akarix::month {

namespace {

const QString kSlipForm = u"Slip_frm"_s;
const QString kPaymentForm = u"SlipN2_frm"_s;
const QString kNumberBox = Ebox(0);
const QString kSaveButton = u"Btn(2)"_s;

/// A document is saved, and the screen ready for the next.
void SaveDocument(Desk& desk) {
    desk.clerk.click(kSaveButton);
    RequireFocus(desk, kNumberBox);
}

// ---- sales slips

/// The new customer takes the new item at once.
Sale NewcomersSale(const Desk& desk) {
    const int day = 15;
    return {desk.newCustomer,
            DateSerial(desk.options.year, desk.options.month, day),
            {GoodsLine(desk.newItem, 10, desk.newItemPrice), TaxLine(), TextLine(u"配送・取付"_s, 3500),
             TaxLine()}};
}

Texts TextsOf(const Sale& sale) {
    Texts texts{{Ebox(1), DateText(sale.day)}, {Ebox(2), QString::number(sale.deal)}};
    int line = 0;
    for (const SaleLine& sold : sale.lines) {
        const QString amount = Ebox(5 + 3 * line);
        if (sold.item != 0) texts[Ebox(3 + 3 * line)] = QString::number(sold.item);
        if (IsTax(sold)) {
            texts[amount] = u"*10"_s;
        } else if (sold.item != 0) {
            texts[Ebox(21 + line)] = QString::number(sold.tenths / 10.0);
        } else {
            texts[Ebox(4 + 3 * line)] = sold.text;
            texts[amount] = QString::number(sold.yen);
        }
        ++line;
    }
    return texts;
}

void TypeSale(Desk& desk, const Sale& sale) {
    constexpr std::size_t mostLines = 6;
    const std::size_t lines = sale.lines.size();
    const std::int32_t number = desk.clerk.text(kNumberBox).toInt();
    const QString end = lines < mostLines ? Ebox(3 + 3 * static_cast<int>(lines)) : kSaveButton;
    WalkTo(desk, end, TextsOf(sale));
    desk.typed.slips[number] = {sale.deal, TotalOf(sale)};
}

// ---- payments

void TypePart(Desk& desk, int line, const PaymentPart& part) {
    RequireFocus(desk, u"dKubun(%1)"_s.arg(line));
    for (int i = 0; i < part.paymentClass; ++i)
        desk.clerk.down();
    desk.clerk.enter();
    desk.clerk.fill(QString::number(part.yen));
    if (!part.memo.isEmpty()) desk.clerk.type(part.memo);
    desk.clerk.enter();
}

void TypePayment(Desk& desk, const Payment& payment) {
    const std::int32_t number = desk.clerk.text(kNumberBox).toInt();
    WalkTo(desk, u"dKubun(0)"_s,
           {{Ebox(1), QString::number(payment.deal)}, {Ebox(2), DateText(payment.day)}});
    int line = 0;
    for (const PaymentPart& part : payment.parts)
        TypePart(desk, line++, part);
    desk.typed.payments[number] = {payment.deal, TotalOf(payment), payment.nextMonth};
}

/// What the customer owed and paid in the half year before stands beside the slip.
void ShowLastHalfYear(Desk& desk) {
    const Texts from = MonthTyped(desk.options, -6);
    desk.clerk.click(Ebox(7));
    WalkTo(desk, u"Btn(4)"_s, {{Ebox(7), from.at(Ebox(0))}, {Ebox(8), from.at(Ebox(1))}});
    desk.clerk.enter();
}

}  // namespace

void TypeSlips(Desk& desk) {
    OpenFromMenu(desk, 0, kSlipForm);
    TypeSale(desk, NewcomersSale(desk));
    TakeForm(desk, u"slip"_s, kSlipForm);
    SaveDocument(desk);
    for (const Sale& sale : SalesOf(*gDb, desk.options.year, desk.options.month)) {
        if (sale.deal == desk.newCustomer) continue;
        TypeSale(desk, sale);
        SaveDocument(desk);
    }
    CloseForm(desk, kSlipForm);
}

void TypeLateSlip(Desk& desk) {
    const Sale sale = LateSaleOf(*gDb, desk.options.year, desk.options.month);
    if (sale.deal == 0) return;
    OpenFromMenu(desk, 0, kSlipForm);
    TypeSale(desk, sale);
    SaveDocument(desk);
    ++desk.lateSlips;
    CloseForm(desk, kSlipForm);
}

void TypePayments(Desk& desk) {
    OpenFromMenu(desk, 2, kPaymentForm);
    const std::vector<Payment> payments = PaymentsOf(*gDb, desk.options.year, desk.options.month);
    auto pictured = std::find_if(payments.begin(), payments.end(),
                                 [](const Payment& payment) { return payment.parts.size() > 1; });
    if (pictured == payments.end()) pictured = payments.begin();
    for (auto payment = payments.begin(); payment != payments.end(); ++payment) {
        TypePayment(desk, *payment);
        if (payment == pictured) {
            ShowLastHalfYear(desk);
            TakeForm(desk, u"payment"_s, kPaymentForm);
        }
        SaveDocument(desk);
    }
    CloseForm(desk, kPaymentForm);
}

}  // namespace akarix::month
