#pragma once

#include <QString>

namespace akarix {

/// A text of the program's for a label: its carriage returns, alone or before a line feed, are the ends of
/// lines, which a label would print as boxes.
QString ShownLines(QString text);

}  // namespace akarix
