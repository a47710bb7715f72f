#pragma once

#include <QString>

#include "platform/dao/Recordset.h"
#include "platform/runtime/Currency.h"
#include "values/BillingMonth.h"

namespace akarix {

/// One customer's account from a month on, gathered in the scratch table TempD: gas, slip lines, payments.
class CustomerAccount {
 public:
    /// What made a line; kept in its column Kubun.
    enum Kind { kGas = 1, kSlip = 2, kPayment = 3 };

    /// Numbers as the clerk typed them; what cannot be a number is left out of them.
    CustomerAccount(const QString& year, const QString& month, const QString& customer);

    /// Raises 13 when the typed code is no number.
    std::int32_t customer() const;
    /// Gathers the lines anew. Raises a syntax error when the typed code is no number.
    void gather() const;
    /// What the months before carry in; 0 without one.
    Currency opening() const;
    /// In each month the gas first, then slips by date, then payments, one line each.
    Recordset lines() const;

 private:
    BillingMonth from_;
    QString customer_;
};

}  // namespace akarix
