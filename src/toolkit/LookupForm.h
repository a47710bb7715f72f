#pragma once

#include <QString>
#include <vector>

#include "platform/forms/FieldLayout.h"
#include "platform/forms/FlexGrid.h"
#include "toolkit/EntryForm.h"

namespace akarix {

/// A column of a pick list: the field it shows, its width in twips, its format and its title.
struct ListColumn {
    QString field;
    int width = 0;
    QString format;
    QString title;
    GridAlignment alignment = AlignLeftCenter;
};

/// What the pick lists share: a grid named List in which one click picks a row and closes the dialog. They
/// hide when a row is picked; the close box unloads them, and so leaves no choice behind.
class LookupForm : public EntryForm {
 public:
    bool Chosen() const { return chosen_; }
    QString Code() const { return code_; }

 protected:
    explicit LookupForm(const QString& name);

    FlexGrid& List() const { return *List_; }
    void forgetChoice();
    /// Picks a row's code, and closes.
    void choose(const QString& code);

    void showColumns(const std::vector<ListColumn>& columns);
    /// Shows the rows of a query below the head row, if there is one. No rows leave the list as it is.
    void fill(const QString& sql, const std::vector<ListColumn>& columns);
    void empty();
    /// Search fields and their buttons, where a list has them, above the hint and the list.
    void layOut(FieldLayout* search, QHBoxLayout* buttons);
    /// A list without a search: a head row, and a click that picks column 0.
    void layOutSlips(const std::vector<ListColumn>& columns);

 private:
    FlexGrid* List_;
    bool chosen_ = false;
    QString code_;
};

/// The condition of a reading or a name searched anywhere in its column; empty for a text without content.
QString LikeCondition(const QString& column, const QString& text);

/// Starts a pick list, shows it modally and gives the picked code; the empty text when it was closed without
/// a pick. The instance is asked anew after the showing: the close box has taken the one that was shown away.
template <class Dialog, class... Arguments>
QString Pick(const Arguments&... arguments) {
    Form::Instance<Dialog>().Start(arguments...);
    Form::Instance<Dialog>().ShowModal();
    const Dialog& after = Form::Instance<Dialog>();
    return after.Chosen() ? after.Code() : QString();
}

}  // namespace akarix
