#pragma once

#include <QStringView>
#include <optional>

#include "platform/jet/Literal.h"

namespace akarix {

/// The lowest rules of the dialect's texts, shared by the lexer and by the keys of the plan cache.

/// Where the name that begins at `place` ends; `place` itself when none begins there.
qsizetype nameEnd(QStringView sql, qsizetype place);

/// Whether a literal begins at `place`: a numeral, a quote, a date's "#".
bool beginsLiteral(QStringView sql, qsizetype place);

struct ScannedLiteral {
    Literal literal;
    QStringView inside;  ///< without quotes and "#"
    qsizetype end;
};
/// The literal that begins at `place`; nothing when it does not end or is no date.
std::optional<ScannedLiteral> scanLiteral(QStringView sql, qsizetype place);

}  // namespace akarix
