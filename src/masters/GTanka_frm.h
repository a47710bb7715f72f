#pragma once

#include "masters/PriceTable.h"
#include "toolkit/EntryForm.h"

class QVBoxLayout;

namespace akarix {

class CheckBox;
class FlexGrid;

/// Keeps the gas tariffs (GasKeisan): patterns of usage bands, and the price table made of them.
class GTanka_frm : public EntryForm {
 public:
    GTanka_frm();
    void init();

 private:
    QVBoxLayout* layOutBands();
    QVBoxLayout* layOutTable();
    void walkFields();

    bool enter(int index) override;
    void clear();
    void load();
    void walk(const QString& condition);
    void clickBand();
    void addBand();
    void save();

    QString pattern() const;
    TariffBand typedBand() const;
    TariffBand bandOf(int row) const;
    void putBand(const std::array<QString, 4>& texts);

    void showBand(const TariffBand& band);
    void showAllBands();
    void addToTable(const TariffBand& band);
    void emptyTable();
    void paintTable();
    void exportTable();

    CommandButton* Command1_ = nullptr;
    CommandButton* cmdLeft_ = nullptr;
    CommandButton* cmdRight_ = nullptr;
    CheckBox* Check1_ = nullptr;
    CheckBox* Check2_ = nullptr;
    FlexGrid* ListK_ = nullptr;
    FlexGrid* List_ = nullptr;
    PriceTable table_;
};

}  // namespace akarix
