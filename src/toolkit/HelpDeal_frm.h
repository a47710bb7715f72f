#pragma once

#include "platform/runtime/Literals.h"
#include "toolkit/LookupForm.h"

namespace akarix {

/// Looks a customer up by reading, name and route.
class HelpDeal_frm : public LookupForm {
 public:
    HelpDeal_frm();
    void Start(const QString& table, const QString& mode);

 private:
    QString searchSql() const;
    void search();
    void pickPressedRow();
    bool enter(int index);

    ControlArray<TextBox> ebox{u"ebox"_s};
    ControlArray<CommandButton> Btn{u"Btn"_s};
    ControlArray<Image> F6{u"F6"_s};
    Label* sRte;
    QString table_;
    QString mode_;
    QString sql_;
};

}  // namespace akarix
