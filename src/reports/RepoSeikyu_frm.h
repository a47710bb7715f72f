#pragma once

#include "output/EX.h"
#include "platform/forms/Choice.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"

namespace akarix {

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

    void layOut();
    bool enter(int index);
    QString filter() const;
    void show();
    void print();
    void printRow(int row, const Recordset& set);
    void printTotal();
    void exportGrid();
    bool withAmounts() const { return ChkGaku_->Value() == 0; }

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
    ControlArray<Image> F6{u"F6"_s};
    Label* sNamaeS_ = nullptr;
    Label* sNamaeE_ = nullptr;
    Label* sRte_ = nullptr;
    CheckBox* ChkGaku_ = nullptr;
    FlexGrid* List_ = nullptr;
    Sums printed_;
};

}  // namespace akarix
