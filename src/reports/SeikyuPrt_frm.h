#pragma once

#include "reports/InvoiceData.h"
#include "toolkit/EntryForm.h"

namespace akarix {

class FlexGrid;
class PrintRun;

/// The issue of invoices: a month's ledger rows of a route and a range of codes, marked for those who get
/// one. By the setting gInvoiceMode invoices are drawn on pre-printed paper or filled into the template;
/// nothing remembers what was issued.
class SeikyuPrt_frm : public EntryForm {
 public:
    SeikyuPrt_frm();
    void init();

 private:
    bool enter(int index) override;
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
    Date issued() const;
    InvoiceMonth invoiceOf(std::int32_t deal) const;

    FlexGrid* List_ = nullptr;
};

}  // namespace akarix
