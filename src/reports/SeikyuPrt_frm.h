#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"
#include "reports/InvoiceData.h"
#include "toolkit/EntryForm.h"

namespace akarix {

class PrintRun;

/// The issue of invoices: a month's ledger rows of a route and a range of codes, marked for those who get
/// one. By the setting gInvoiceMode invoices are drawn on pre-printed paper or filled into the template;
/// nothing remembers what was issued.
class SeikyuPrt_frm : public EntryForm {
 public:
    SeikyuPrt_frm();
    void init();

 private:
    void layOut();
    QLayout* layOutFields();
    QLayout* layOutButtons();
    bool enter(int index);
    void build();
    void clickMark();
    void markAll(const QString& mark);
    /// False for the row of the totals.
    bool isCustomer(int row) const;
    bool isMarked(int row) const;
    void print();
    void issueDrawn(PrintRun& run);
    void issueSheets(PrintRun& run);
    void exportGrid();

    QString typed(int field) const;
    InvoiceMonth invoiceOf(std::int32_t deal) const;

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<Image> F6{u"F6"_s};
    CommandButton* Btn_ = nullptr;
    CommandButton* Command1_ = nullptr;
    CommandButton* DelBtn_ = nullptr;
    CommandButton* ExcelBtn_ = nullptr;
    Label* sNamaeS_ = nullptr;
    Label* sNamaeE_ = nullptr;
    Label* sRte_ = nullptr;
    FlexGrid* List_ = nullptr;
};

}  // namespace akarix
