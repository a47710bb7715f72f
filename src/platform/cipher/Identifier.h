#pragma once

#include <QByteArray>
#include <QString>

#include "platform/runtime/Literals.h"

namespace akarix {

/// A name as the engine's SQL quotes it.
inline QByteArray Quoted(const QString& name) {
    QString inner = name;
    return '"' + inner.replace(u'"', u"\"\""_s).toUtf8() + '"';
}

}  // namespace akarix
