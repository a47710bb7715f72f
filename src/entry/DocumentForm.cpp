#include "entry/DocumentForm.h"

#include "store/FieldValue.h"
#include "store/Lookup.h"
#include "values/NumStr.h"

namespace akarix {

DocumentForm::DocumentForm(const QString& name, const QString& caption, const DocumentTexts& texts)
    : KeyedForm(name, caption), highest_(texts.highest) {
    setWalk(texts.left, texts.right);
}

QString DocumentForm::proposedCode() {
    return NumStr(HighestPlus(highest_, 1));
}

void DocumentForm::showRow(Recordset& row) {
    ebox(kCode).SetText(NumStr(LongOf(row[u"Dno"_s])));
    load();
}

void DocumentForm::openDocument(std::int32_t dno) {
    if (dno < 1) return;
    init();
    ebox(kCode).SetText(NumStr(dno));
    load();
}

}  // namespace akarix
