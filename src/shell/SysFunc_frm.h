#pragma once

#include "toolkit/EntryForm.h"

namespace akarix {

/// Service's access to the settings rows: any code, any contents. What is read at the start counts from the
/// next start on.
class SysFunc_frm : public EntryForm {
 public:
    SysFunc_frm();
    void init();

 private:
    bool enter(int index) override;
    void load();
    void save();
    QString question() const;
};

}  // namespace akarix
