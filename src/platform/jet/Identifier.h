#pragma once

#include <QByteArray>
#include <QString>

namespace akarix {

/// A name as the engine's SQL quotes it.
inline QByteArray Quoted(const QString& name) {
    QString inner = name;
    return '"' + inner.replace(u'"', QStringLiteral("\"\"")).toUtf8() + '"';
}

}  // namespace akarix
