#pragma once

#include "output/EX.h"
#include "platform/forms/Choice.h"
#include "toolkit/EntryForm.h"

namespace akarix {

class FlexGrid;

/// The billing list: a month's ledger for a range of codes and a route, in the order of the round, on the
/// screen and on the sheet "請求一覧表".
class RepoSeikyu_frm : public EntryForm, public ReportForm {
 public:
    RepoSeikyu_frm();
    void init();

    void ClrDetail() override;
    void PrintOutHead(int page) override;
    void PrintOutDetail(int row, Recordset& set) override;
    void PrintOutDetailGokei(int line, int firstRow, int page) override;

 private:
    /// What the list adds up; the grid's last row and the sheet's total.
    struct Sums {
        Currency suu, gGaku, uGaku, gaku, zenkaiGaku, nGaku;
    };

    bool enter(int index) override;
    QString filter() const;
    void show();
    void print();
    void printRow(int row, const Recordset& set);
    void printTotal();
    void exportGrid();
    bool withAmounts() const { return ChkGaku_->Value() == 0; }

    CheckBox* ChkGaku_ = nullptr;
    FlexGrid* List_ = nullptr;
    Sums printed_;
};

}  // namespace akarix
