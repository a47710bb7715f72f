#pragma once

#include "output/EX.h"
#include "platform/forms/Choice.h"
#include "toolkit/MasterForm.h"

namespace akarix {

/// Keeps the customers (Deal), and prints the list of them.
class MstDeal_frm : public MasterForm, public ReportForm {
 public:
    MstDeal_frm();

    void ClrDetail() override;
    void PrintOutHead(int page) override;
    void PrintOutDetail(int row, Recordset& set) override;
    void PrintOutDetailGokei(int, int, int) override {}

 protected:
    bool enter(int index) override;
    void showDefaults() override;
    void showExtras(Recordset& row) override;
    void storeExtras(Recordset& row) override;
    bool mayAskToRemove() override;
    bool mayRemove() override;

 private:
    void addLeases();
    void addListFields();
    void walkFields();
    void fillAddress();
    void proposeHaisou();
    void print();

    CheckBox* ChkACU_ = nullptr;
    CheckBox* ChkKeihou_ = nullptr;
    CheckBox* ChkNoSeikyu_ = nullptr;
    CommandButton* BtnDiscGaku_ = nullptr;
    TextBox* searchBank_ = nullptr;
    int defaultSime_ = 0;
    bool listsBank_ = false;  ///< the list under way is one bank's
};

}  // namespace akarix
