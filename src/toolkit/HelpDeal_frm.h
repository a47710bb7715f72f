#pragma once

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

    ControlArray<TextBox> ebox{QStringLiteral("ebox")};
    ControlArray<CommandButton> Btn{QStringLiteral("Btn")};
    ControlArray<Image> F6{QStringLiteral("F6")};
    Label* sRte;
    QString table_;
    QString mode_;
    QString sql_;
};

}  // namespace akarix
