#include "toolkit/FilterTerms.h"

#include "platform/forms/TextBox.h"
#include "values/NumStr.h"
#include "values/NumVal.h"

namespace akarix {

QString FilterTerms(std::initializer_list<FilterTerm> terms) {
    QString filter;
    for (const FilterTerm& term : terms) {
        const double number = NumVal(term.box.Text());
        if (number > 0) filter += QString::fromUtf16(term.condition) + NumStr(number);
    }
    return filter;
}

QString FilterTermsAsTyped(std::initializer_list<FilterTerm> terms) {
    QString filter;
    for (const FilterTerm& term : terms) {
        const QString text = term.box.Text();
        if (NumVal(text) > 0) filter += QString::fromUtf16(term.condition) + KeepNumeric(text);
    }
    return filter;
}

}  // namespace akarix
