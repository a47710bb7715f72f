#pragma once

#include <QColor>
#include <QString>

namespace akarix {

struct FormattedNumber {
    QString text;
    QColor color;  ///< invalid unless the format names one
};

/// A number through a cell's format code: sections, conditions, colours, fill and skip marks, dates with
/// eras; as under General where the code is not known.
FormattedNumber FormatNumber(double value, const QString& code);
/// A text through the format's text section.
QString FormatText(const QString& text, const QString& code);

/// Whether every section of the code is one that FormatNumber follows.
bool IsKnownFormat(const QString& code);

/// Whether a number through this format shows as a date or a time of day.
bool IsDateFormat(const QString& code);

}  // namespace akarix
