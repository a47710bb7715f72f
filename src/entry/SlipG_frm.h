#pragma once

#include <QHash>

#include "entry/MonthReadings.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"
#include "toolkit/EntryForm.h"
#include "toolkit/GridEdit.h"

namespace akarix {

/// The monthly reading sheet: a row a customer in the order of the round, readings typed straight into the
/// grid. The grid is the working copy of the month; nothing but a month's opening is written before the save.
/// Readings confirmed since are given up only after a question, except by 画面クリア and 削除.
class SlipG_frm : public EntryForm, public GridForm {
 public:
    SlipG_frm();
    ~SlipG_frm() override;
    void init();
    /// Opens the sheet on one customer's month; numbers below 1 change nothing.
    void fromexe(std::int16_t& Nendo, std::int16_t& Getudo, std::int32_t& Deal);

    TextBox& tBox() override { return *tBox_; }
    ComboBox* cbBox() override { return nullptr; }
    void SetCombo(const QString& /*gridName*/) override {}

 protected:
    void QueryUnload(bool& cancel) override;
    bool holdsWork() const override;

 private:
    void layOut();
    void defineColumns();
    bool enter(int index);
    void takeRouteDay();
    void clear();
    bool mayDropReadings();

    QString filter() const;
    MonthReadings month() const;
    void showMonth();
    void fill(Recordset& rows, const QHash<std::int32_t, QString>& names);
    void save();
    void askAndDelete();
    void exportGrid();

    void openEditor();
    void cellKey(KeyEvent& event);
    void confirmCell();
    void takeCell();
    void calculateRow(int row);
    bool isDayOfMonth(const QString& day) const;

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
    ControlArray<Image> F6{u"F6"_s};
    CommandButton* Command1_ = nullptr;
    Label* sRte_ = nullptr;
    FlexGrid* List_ = nullptr;
    TextBox* tBox_ = nullptr;
    std::int16_t defaultDay_ = 0;
    bool unsaved_ = false;  ///< readings were confirmed since the sheet was last filled or emptied
};

}  // namespace akarix
