#pragma once

#include "masters/CapacityKind.h"
#include "platform/forms/Choice.h"
#include "toolkit/EntryForm.h"

class QBoxLayout;

namespace akarix {

class FlexGrid;

/// Keeps the prices by capacity (Tnk), a pattern at a time, and prints them as the dealer's price list. The
/// table stands by itself: no charge is made from it, and no button of the menu opens this screen.
class MstTanka_frm : public EntryForm {
 public:
    MstTanka_frm();
    void init();

 private:
    QBoxLayout* layOutFields();
    QBoxLayout* layOutButtons();

    bool enter(int index) override;
    void clear();
    void drawGrid();
    void load();
    void takePrice();
    /// False when it was refused.
    bool save();
    void remove();
    void print();
    void exportGrid();

    const CapacityKind& kind() const;
    QString pattern() const;
    void put(Currency capacity, Currency price);

    ControlArray<OptionButton> Opt{u"Opt"_s};
    FlexGrid* List_;
};

}  // namespace akarix
