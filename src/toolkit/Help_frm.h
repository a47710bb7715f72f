#pragma once

#include "platform/runtime/Literals.h"
#include "toolkit/LookupForm.h"

namespace akarix {

/// Looks a code up in one master table: routes, goods, banks, and lists of their shape.
class Help_frm : public LookupForm {
 public:
    Help_frm();
    /// The mode is kept; no table's list depends on it today.
    void Start(const QString& table, const QString& mode);

 private:
    const std::vector<ListColumn>& columns() const;
    QString listSql() const;
    QString searchSql() const;
    void search();
    bool enter(int index);

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
    QString table_;
    QString mode_;
    QString sql_;
};

}  // namespace akarix
