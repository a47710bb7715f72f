#pragma once

#include "toolkit/KeyedForm.h"

namespace akarix {

/// The statements of a document screen; %1 stands for the number in ebox(0).
struct DocumentTexts {
    QString highest;  ///< the highest number given so far
    QString left;     ///< the lines of the documents below it, the nearest first
    QString right;    ///< the lines of the documents above it
};

/// A screen that keeps numbered documents (Dno) of several lines. A cleared screen proposes the number after
/// the highest; nothing reserves it.
class DocumentForm : public KeyedForm {
 protected:
    DocumentForm(const QString& name, const QString& caption, const DocumentTexts& texts);

    /// Shows the document whose number stands in ebox(0).
    virtual void load() = 0;
    /// Makes the screen ready and shows a document; a number below 1 is none and changes nothing.
    void openDocument(std::int32_t dno);

    QString proposedCode() override;
    void showRow(Recordset& row) override;

 private:
    QString highest_;
};

}  // namespace akarix
