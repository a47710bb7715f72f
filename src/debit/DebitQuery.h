#pragma once

#include <QString>
#include <cstdint>

#include "platform/dao/Recordset.h"
#include "platform/runtime/Currency.h"
#include "values/BillingMonth.h"

namespace akarix {

/// The post office stands among the collecting banks under this code.
constexpr int kPostOffice = 9900;

/// What a collecting bank is asked for in a month: one row per account, in the order of the round. Customers
/// who share an account are one row, under the first of them, with the sum of what those who owe anything
/// owe.
QString DebitQuery(int bank, BillingMonth month);

/// A row of DebitQuery.
struct DebitRow {
    std::int32_t Deal = 0;
    std::int16_t Bnk = 0;
    std::int16_t Stn = 0;
    std::int16_t Kind = 0;
    QString Koza;
    QString Kana;
    Currency tGaku;     ///< the balance of the account's customers
    Currency DiscGaku;  ///< the fixed monthly amount; 0 is none
};

DebitRow ReadDebitRow(const Recordset& set);

/// What the account is debited with: the fixed amount where there is one and the balance reaches it,
/// otherwise the balance.
Currency DebitAmount(Currency tGaku, Currency DiscGaku);

}  // namespace akarix
