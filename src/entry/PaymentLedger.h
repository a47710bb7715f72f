#pragma once

#include <array>
#include <cstdint>

#include <QString>

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"
#include "values/BillingMonth.h"

namespace akarix {

/// A line of a payment slip; one without an amount is not stored.
struct PaymentLine {
    std::int16_t Kubun = 0;  ///< NyukinKubun.Code, 0 for none
    Currency Gaku;
    QString Naiyo;
};

/// What a customer paid on a day.
struct PaymentSlip {
    static constexpr int kLines = 5;

    std::int32_t Dno = 0;
    std::int32_t Deal = 0;
    Date Hizuke;
    std::array<PaymentLine, kLines> lines;
};

/// Replaces the customer's lines under the slip's number and brings the payments of its billing month up to
/// date in the ledger; a month without a ledger row gets one that carries the balance in. A line keeps its
/// place, so an empty one leaves a gap. The month the slip stood in before keeps its sum until it is saved
/// or billed again. Gives the billing month.
///
/// Raises 3022 when another customer has lines under the number. Every statement stands by itself: after an
/// error the slip may lack lines or the ledger the new sum, and saving again completes both.
BillingMonth SavePayment(const PaymentSlip& slip);

/// Takes every line under the number away and brings the billing month of the given customer and date up to
/// date.
void DeletePayment(std::int32_t dno, std::int32_t deal, Date hizuke);

/// The slip of that number, its lines from the top without gaps; lines beyond the fifth are left out. Its
/// Dno is 0 when there is none.
PaymentSlip LoadPayment(std::int32_t dno);

}  // namespace akarix
