#pragma once

#include <QStringList>
#include <functional>

namespace akarix {

/// The width of a part that begins at a place in the text.
using TextMeasure = std::function<double(qsizetype place, const QString& part)>;

/// Breaks a text into lines that fit the room, where Japanese and western writing allow it.
QStringList TextLines(const QString& text, double room, const TextMeasure& measure);
/// The pieces that distributed text keeps together: a Japanese letter each, a western word.
QStringList TextPieces(const QString& text);

}  // namespace akarix
