#pragma once

#include <QString>

#include "platform/runtime/Int16.h"

namespace akarix {

/// A line of a print script: "<TAG>argument", or plain text (the tag is "*").
struct ScriptLine {
    /// Raises 5 for a line that begins with ">".
    explicit ScriptLine(const QString& line);

    QString tag;
    QString argument;
};

/// The number in an argument; what is no part of a number is left out. Raises 6 beyond 16 bits.
Int16 ScriptNumber(const QString& text);

/// Takes a list argument apart from the left.
class ScriptArguments {
 public:
    explicit ScriptArguments(const QString& argument) : rest_(argument) {}

    /// Up to the next comma; raises 5 when there is none.
    Int16 number();
    /// All that is left, commas included.
    const QString& rest() const { return rest_; }

 private:
    QString rest_;
};

}  // namespace akarix
