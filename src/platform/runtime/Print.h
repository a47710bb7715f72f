#pragma once

#include <QString>

namespace akarix {

/// "Print #number, text": the text, then CR LF unless the statement ends in a semicolon (lineEnd false).
void Print(int number, const QString& text, bool lineEnd = true);

}  // namespace akarix
