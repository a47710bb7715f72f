#pragma once

#include <QString>
#include <ostream>

QT_BEGIN_NAMESPACE
/// Failures of a test show the text, not its bytes.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE
