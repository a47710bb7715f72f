#pragma once

#include <QString>
#include <QStringView>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

/// The errors of the dialect, with the construct and its place. Places count from 0 here and from 1 in the
/// texts.
RuntimeError syntaxError(QStringView sql, const QString& what, qsizetype position);
RuntimeError unknownName(const QString& name, qsizetype position);
RuntimeError ambiguousName(const QString& name, qsizetype position);
RuntimeError unknownTable(const QString& name);
RuntimeError unknownFunction(const QString& name, qsizetype position);
RuntimeError kindsDiffer(qsizetype position);
RuntimeError outsideAggregate(const QString& expression);
RuntimeError tooComplex();
RuntimeError dialectError(int number, const QString& text);

}  // namespace akarix
