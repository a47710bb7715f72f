#pragma once

#include "toolkit/MasterForm.h"

namespace akarix {

/// Keeps one of the code lists Dbn, Kko, DyJkn, Col and Shk, which are of one shape. No other screen uses
/// these lists today, and none opens this one.
class ms_frm : public MasterForm {
 public:
    ms_frm();
    void init(const QString& table);

 protected:
    bool enter(int index) override;
    QString codeText() const override;
    QString proposedCode() override;
    void keepUnknownCode(const QString& typed) override;
    bool maySave() override;

 private:
    using MasterForm::init;  // there is no screen without a table

    QString table_;
};

}  // namespace akarix
