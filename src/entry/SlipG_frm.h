#pragma once

#include <QHash>
#include <optional>

#include "entry/MonthReadings.h"
#include "toolkit/CellEditor.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// The monthly reading sheet: a row a customer in the order of the round, readings typed straight into the
/// grid. The grid is the working copy of the month; nothing but a month's opening is written before the save.
/// Readings confirmed since are given up only after a question, except by 画面クリア and 削除.
class SlipG_frm : public EntryForm {
 public:
    SlipG_frm();
    void init();
    /// Opens the sheet on one customer's month; numbers below 1 change nothing.
    void fromexe(std::int16_t& Nendo, std::int16_t& Getudo, std::int32_t& Deal);

 protected:
    void QueryUnload(bool& cancel) override;
    bool holdsWork() const override;

 private:
    void layOut();
    bool enter(int index) override;
    void takeRouteDay();
    void clear();
    bool mayDropReadings();

    QString filter() const;
    MonthReadings month() const;
    void showMonth();
    void save();
    void askAndDelete();
    void exportGrid();

    bool cellKey(int keyCode);
    void confirmCell();
    void takeCell();
    void calculateRow(int row);
    bool isDayOfMonth(const QString& day) const;

    CommandButton* Command1_ = nullptr;
    FlexGrid* List_ = nullptr;
    std::optional<CellEditor> cell_;
    std::int16_t defaultDay_ = 0;
    bool unsaved_ = false;  ///< readings were confirmed since the sheet was last filled or emptied
};

}  // namespace akarix
