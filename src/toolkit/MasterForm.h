#pragma once

#include "toolkit/FieldTable.h"
#include "toolkit/KeyedForm.h"

namespace akarix {

/// The statements of a master screen; %1 stands for the code in ebox(0).
struct MasterTexts {
    QString table;
    QString load;    ///< the row of a code
    QString left;    ///< the rows below it, the nearest first; empty: the screen has no walkers
    QString right;   ///< the rows above it
    QString remove;  ///< deletes the row
    QString removeQuestion;
};

/// A screen that keeps one table, a row at a time, under the code in ebox(0). A cleared screen stands ready
/// for a new row under the next free code; a code without a row keeps itself and empties the rest.
///
/// A screen's constructor calls addFields, adds what it has besides (whose controls are then walked between
/// the fields and the buttons), and calls addButtons. What differs is said by overriding the small steps
/// below.
class MasterForm : public KeyedForm {
 protected:
    MasterForm(const QString& name, const QString& caption, MasterTexts texts);

    void addFields(const FieldTable& fields);
    void addButtons();

    /// For a screen that keeps one of several tables, chosen when it is opened.
    void setTexts(MasterTexts texts);
    /// A field that must hold text: when it does not, tells the message, goes to the field, gives False.
    bool require(int index, const QString& message);

    /// The base loads at the code.
    bool enter(int index) override;
    QString proposedCode() override;
    /// The typed code has no row.
    virtual void keepUnknownCode(const QString& typed);
    /// Shows and stores what is no field of the table.
    virtual void showExtras(Recordset&) {}
    virtual void storeExtras(Recordset&) {}
    /// Tells what forbids saving, and puts the focus there.
    virtual bool maySave();
    virtual bool mayAskToRemove() { return true; }
    virtual bool mayRemove() { return true; }
    virtual QString removeSql();

    void save();

 private:
    void addField(const MasterField& field);
    void load();
    void showRow(Recordset& row) override;
    void remove();

    MasterTexts texts_;
    FieldTable fields_;
    FieldLayout rows_;
};

}  // namespace akarix
