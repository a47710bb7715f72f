#pragma once

#include "entry/DocumentForm.h"
#include "values/BillingMonth.h"

class QGroupBox;
class QVBoxLayout;

namespace akarix {

class FlexGrid;
struct PaymentSlip;

/// Takes a customer's payments, a slip of up to five lines at a time, beside what the customer owed from
/// month to month; and keeps the balance with which a customer joins the ledger.
class SlipN2_frm : public DocumentForm {
 public:
    SlipN2_frm();
    void init() override;
    /// Opens the screen on a slip; a number below 1 changes nothing.
    void fromexe(std::int32_t& Dno);

 private:
    QVBoxLayout* layOutSlip();
    void layOutHead(QVBoxLayout& column);
    void layOutLines(QVBoxLayout& column);
    QVBoxLayout* layOutHistory();
    QGroupBox* layOutOpening();

    void showDefaults() override;
    void load() override;
    void show(const PaymentSlip& slip);
    void showTotal();
    void showLedgerEnd(BillingMonth end);
    bool enter(int index) override;

    static void fillClasses(ComboBox& list);
    std::int32_t number(int index) const;
    Date date() const;
    PaymentSlip slipOnScreen() const;
    bool maySave();
    bool requireCustomer();

    void save();
    void remove();
    void saveOpening();
    void showHistory();

    ControlArray<ComboBox> dKubun{u"dKubun"_s};
    ControlArray<TextBox> eGaku{u"eGaku"_s};
    ControlArray<TextBox> eNaiyo{u"eNaiyo"_s};
    FlexGrid* List_ = nullptr;
    Label* total_ = nullptr;
    Label* ledgerEnd_ = nullptr;
    BillingMonth end_;
};

}  // namespace akarix
