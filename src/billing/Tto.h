#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// The monthly receivable ledger TtoD. Year and month are plain numbers, money is Currency.
void BuildMonthLedger(int nendo, int getudo, Date creation);
void CarryForwardMonth(int nendo, int getudo);
void PutGGaku(int nendo, int getudo, std::int32_t deal, Currency amount);
void PutUGaku(int nendo, int getudo, std::int32_t deal, Currency amount);
void PutNGaku(int nendo, int getudo, std::int32_t deal, Currency amount);
void PutZenkaiGaku(std::int32_t deal, int nendo, int getudo, Currency amount);
void MakeLeaseSlip(int nendo, int getudo, Date creation, std::int32_t deal, int acu, int keihou,
                   int tankaPtn);
std::int32_t NextDudNo();
void ReadLedgerHead(std::int32_t deal, int nendo, int getudo, Currency& zenkaiGaku, int& syokiFlg);
/// Empty when there is no earlier row.
Variant PriorBalance(std::int32_t deal, int nendo, int getudo);
QString ReadClosingDate(std::int16_t year, std::int16_t month);

}  // namespace akarix
