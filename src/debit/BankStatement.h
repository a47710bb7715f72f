#pragma once

#include <QString>

#include "output/EX.h"
#include "platform/runtime/Currency.h"
#include "values/BillingMonth.h"

namespace akarix {

/// What a bank's disk of a month will ask for, on the sheet "口座振替明細表". The amounts are the balances,
/// whatever fixed amount a customer has agreed on.
class BankStatement : public ReportForm {
 public:
    /// \param mode "Bnk" names the bank at the head, "Yubin" the post office
    BankStatement(const QString& mode, int bank, BillingMonth month);

    void ClrDetail() override;
    void PrintOutHead(int page) override;
    void PrintOutDetail(int row, Recordset& set) override;
    void PrintOutDetailGokei(int line, int firstRow, int page) override;

 private:
    QString bankName_;
    QString month_;
    int count_ = 0;
    Currency total_;
};

/// Asks for the printer and prints; no rows, no page and no word.
void PrintBankStatement(int bank, BillingMonth month);

}  // namespace akarix
