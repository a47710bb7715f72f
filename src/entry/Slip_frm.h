#pragma once

#include <array>

#include "entry/DocumentForm.h"
#include "platform/runtime/Date.h"
#include "values/BillingMonth.h"

namespace akarix {

/// Enters what is sold besides metered gas: slips (Dud) of up to six lines, each booked to the billing month
/// of its date. A slip is written whole and replaced whole.
class Slip_frm : public DocumentForm {
 public:
    Slip_frm();
    void init() override;
    /// Opens the screen on a slip; a number below 1 changes nothing.
    void fromexe(std::int32_t& Dno);

 private:
    void layOutHead();
    void layOutLines();

    void showDefaults() override;
    void load() override;
    void showLine(int line, Recordset& row);

    bool enter(int index) override;
    void enterLine(int line, int index);
    void takeItem(int line);
    void putAmount(int line, Currency amount);
    Currency figure(int index) const;

    bool maySave(Date date);
    void save();
    void storeLine(int line, int eda, Date date, BillingMonth month);
    bool isUsed(int line) const;
    void removeRows();
    void askAndRemove();

    static constexpr int kLines = 6;

    Date today_;
    std::array<double, kLines> items_{};  ///< the code whose item each line shows; 0 for free text
};

}  // namespace akarix
