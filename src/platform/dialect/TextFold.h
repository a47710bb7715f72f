#pragma once

#include <QString>

namespace akarix {

/// The text with what comparisons do not heed taken away: case, width and the kind of kana. A half-width kana
/// and the mark behind it become one letter, so ﾔﾏﾀﾞ, やまだ and ヤマダ give the same.
QString FoldText(const QString& text);

/// Below 0, 0 or above 0, as the folded texts stand by their code points.
int CompareTexts(const QString& a, const QString& b);

}  // namespace akarix
