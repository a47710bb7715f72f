#pragma once

#include <optional>

#include "toolkit/CellEditor.h"
#include "toolkit/EntryForm.h"
#include "values/BillingMonth.h"

namespace akarix {

/// Sets the balances with which many customers come into a month, typed one under the other into a grid. The
/// billing run then leaves the carried balance of every saved row alone, those left at 0 too: whoever sets
/// balances route by route shows only that route.
class TorZan_frm : public EntryForm {
 public:
    TorZan_frm();
    void init();

 private:
    void layOut();
    void clear();

    BillingMonth month() const;
    void show();
    void save();

    bool cellKey(int keyCode);
    void confirm();
    void moveTo(int row);

    FlexGrid* List_ = nullptr;
    std::optional<CellEditor> cell_;
};

}  // namespace akarix
