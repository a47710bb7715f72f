#pragma once

#include <QString>

namespace akarix {

/// The classic conversion flags; they may be added where they do not contradict each other.
enum StrConvFlag {
    WideChars = 4,
    NarrowChars = 8,
    Katakana = 16,
};

/// Contradicting flags raise 5. Kana and their voiced marks join in full width and part in half width; "\"
/// stays when widening, "￥" becomes "\" when narrowing; hiragana stay full-width unless Katakana is asked
/// for too.
QString StrConv(const QString& text, int conversion);

}  // namespace akarix
