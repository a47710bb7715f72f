#pragma once

#include "toolkit/MasterForm.h"

namespace akarix {

/// A field for a column of Bnk as every consignor screen has it: its kind, width, input method and mask.
/// \param label the caption on the screen
MasterField ConsignorField(int index, const QString& label, const QString& column);

/// The statements of a consignor screen: how it loads and walks is its own, what it deletes is not.
MasterTexts ConsignorTexts(const QString& load, const QString& left, const QString& right);

/// A screen that keeps consignors: the dealer as a customer of the banks that collect for him (Bnk).
class ConsignorForm : public MasterForm {
 protected:
    /// A field that must hold text, and what is said when it does not.
    struct Requirement {
        int field;
        QString message;
    };

    /// \param required in the order of asking
    ConsignorForm(const QString& name, const QString& caption, MasterTexts texts, const FieldTable& fields,
                  std::vector<Requirement> required);

    QString proposedCode() override { return {}; }
    bool maySave() override;
    QString removeSql() override;

 private:
    std::vector<Requirement> required_;
    int branch_ = 0;
};

}  // namespace akarix
