#pragma once

#include <QString>

namespace akarix {

/// Writes the column `contents` of the row that the question finds, an empty text as one blank. Without a
/// row one is added under the code, which is read as typed (13 for what is no number, 6 past 32 bits).
void PutContents(const QString& sql, const QString& code, const QString& contents);

}  // namespace akarix
