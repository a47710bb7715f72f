#pragma once

#include <QString>

namespace akarix {

/// The classic conversion flags; they may be added where they do not contradict each other.
enum StrConvFlag {
    UpperCase = 1,
    LowerCase = 2,
    ProperCase = 3,
    WideChars = 4,
    NarrowChars = 8,
    Katakana = 16,
    Hiragana = 32,
};

/// Contradicting flags raise 5.
QString StrConv(const QString& text, int conversion);

}  // namespace akarix
