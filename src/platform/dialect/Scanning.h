#pragma once

#include <QStringView>
#include <optional>

#include "platform/dialect/Literal.h"

namespace akarix {

/// The lowest rules of the dialect's texts, shared by the lexer and by the keys of the plan cache.

/// Where the name that begins at `place` ends; `place` itself when none begins there.
qsizetype NameEnd(QStringView sql, qsizetype place);

/// Whether a literal begins at `place`: a numeral, a quote, a date's "#".
bool BeginsLiteral(QStringView sql, qsizetype place);

/// Copies the text from `place` on, which is in no name, until it comes to a literal or a bracketed name;
/// moves the place there and gives the end of the copy. Character by character: a statement has just been
/// put together from short pieces, and wide loads of what narrow stores have not yet written are dear.
QChar* CopyPlain(QStringView sql, qsizetype& place, QChar* to);

struct WholeNumeral {
    std::int64_t value;
    qsizetype end;
};
/// The usual literal, a short whole number; nothing when there is another at `place`.
std::optional<WholeNumeral> ScanWholeNumeral(QStringView sql, qsizetype place);

struct ScannedLiteral {
    Literal literal;
    QStringView inside;  ///< without quotes and "#"
    qsizetype end;
};
/// The literal that begins at `place`; nothing when it does not end or is no date.
std::optional<ScannedLiteral> ScanLiteral(QStringView sql, qsizetype place);

}  // namespace akarix
