#pragma once

#include "toolkit/EntryForm.h"

class QLayout;

namespace akarix {

class FlexGrid;

/// The customer ledger: one customer's running account from a month on, with the way from a line to the
/// screen that made it, and the two commands that delete a month.
class RepoDaichou_frm : public EntryForm {
 public:
    RepoDaichou_frm();
    void init();

 private:
    QLayout* layOutHead();
    QWidget* layOutPurge();
    bool enter(int index) override;
    void showAccount();
    void openLine();
    void exportGrid();
    void purgeAll();
    void purgeCustomer();
    /// Asks first; an empty customer means all of them.
    void purge(const QString& question, const QString& customer);
    QString number(int field) const;

    FlexGrid* List_ = nullptr;
    std::int32_t shownCustomer_ = 0;  ///< whose lines stand in the grid, whatever is typed above it since
};

}  // namespace akarix
