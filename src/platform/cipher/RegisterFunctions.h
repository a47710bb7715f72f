#pragma once

#include <QByteArray>

struct sqlite3;

namespace akarix {

/// Gives a connection the functions that the written statements call, the aggregate akarix_first and the
/// collations AKARIX_NOCASE (the keys of texts), AKARIX_TEXT (comparisons and groups of texts, see
/// TextFold.h) and AKARIX_ORDER (the order of a Japanese list; not for the schema, since it changes with the
/// ICU in use). To be called on every connection before its first statement.
///
/// akarix_first(value, order...) is the value of the row whose order values come first.
void RegisterSqlFunctions(sqlite3* connection);

/// The classic number of an error that one of these functions raised, or that the engine has a text of its
/// own for, from the message of the connection; 0 for all others.
int FunctionErrorNumber(const QByteArray& message);

}  // namespace akarix
