#pragma once

#include "toolkit/LookupForm.h"

namespace akarix {

/// Looks a code up in one master table: routes, goods, banks, and lists of their shape.
class Help_frm : public LookupForm {
 public:
    Help_frm();
    void Start(const QString& table);

 private:
    QString searchSql() const;

    QString table_;
};

}  // namespace akarix
