#pragma once

#include <QString>
#include <initializer_list>

namespace akarix {

class TextBox;

/// A field that narrows a question down, and the condition its number completes, as " AND Deal.Rte=".
struct FilterTerm {
    const TextBox& box;
    const char16_t* condition;
};

/// The conditions of the fields whose number is above 0, one behind the other.
QString FilterTerms(std::initializer_list<FilterTerm> terms);
/// The same with what stands in the field instead of its number: "1-2" stays a difference.
QString FilterTermsAsTyped(std::initializer_list<FilterTerm> terms);

}  // namespace akarix
