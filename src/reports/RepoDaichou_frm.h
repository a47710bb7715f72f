#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"
#include "reports/CustomerAccount.h"
#include "toolkit/EntryForm.h"

class QLayout;

namespace akarix {

/// The customer ledger: one customer's running account from a month on, with the way from a line to the
/// screen that made it, and the two commands that delete a month.
class RepoDaichou_frm : public EntryForm {
 public:
    RepoDaichou_frm();
    void init();

 private:
    void layOut();
    QLayout* layOutHead();
    QWidget* layOutPurge();
    bool enter(int index);
    void showAccount();
    void openLine();
    void exportGrid();
    void purgeAll();
    void purgeCustomer();
    /// Asks first; an empty customer means all of them.
    void purge(const QString& question, const QString& customer);
    QString number(int field) const;

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<Image> F6{u"F6"_s};
    Label* sNamae_ = nullptr;
    Label* sNGaku_ = nullptr;
    CommandButton* excelCmd_ = nullptr;
    CommandButton* Command_ = nullptr;
    CommandButton* siteiCmd_ = nullptr;
    FlexGrid* List_ = nullptr;
    std::int32_t shownCustomer_ = 0;  ///< whose lines stand in the grid, whatever is typed above it since
};

}  // namespace akarix
