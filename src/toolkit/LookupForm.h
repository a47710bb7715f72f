#pragma once

#include "toolkit/EntryForm.h"
#include "toolkit/GridColumns.h"

namespace akarix {

/// What the pick lists share: a grid named List in which one click picks a row and closes the dialog, and
/// mostly search fields above it, a reading and a name first. They hide when a row is picked; the close box
/// unloads them, and so leaves no choice behind.
class LookupForm : public EntryForm {
 public:
    /// The picked code; the empty text without a pick.
    QString Code() const { return code_; }

 protected:
    /// \param column what a click picks of the present row or, where `pressed`, of the row under the mouse
    explicit LookupForm(const QString& name, int column = 0, bool pressed = false);

    /// From the top: search fields, the hint with the buttons, the list.
    void layOut(FieldLayout* search = nullptr, QHBoxLayout* buttons = nullptr);
    /// The reading and the name that are searched for.
    void addWords(FieldLayout& search);
    QString wordConditions() const { return readingCondition() + nameCondition(); }
    QString readingCondition() const;
    QString nameCondition() const;
    /// Behind the last field comes the search.
    bool enter(int index) override;

    FlexGrid& List() const { return *List_; }
    void showColumns(const GridColumns& columns);
    /// A new use: nothing picked or typed.
    void begin();
    void clear();
    void emptyList();
    /// No rows leave the list as it is.
    void fill(const QString& sql);

 private:
    FlexGrid* List_;
    GridColumns columns_;
    QString code_;
};

}  // namespace akarix
