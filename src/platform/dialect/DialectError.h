#pragma once

#include <QString>
#include <QStringView>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

/// The errors of the dialect, with the construct and its place. Places count from 0 here and from 1 in the
/// texts.
RuntimeError SyntaxError(QStringView sql, const QString& what, qsizetype position);
RuntimeError UnknownName(const QString& name, qsizetype position);
RuntimeError AmbiguousName(const QString& name, qsizetype position);
RuntimeError UnknownTable(const QString& name);
RuntimeError UnknownFunction(const QString& name, qsizetype position);
RuntimeError KindsDiffer(qsizetype position);
RuntimeError OutsideAggregate(const QString& expression);
RuntimeError TooComplex();
RuntimeError TwiceInFrom(const QString& table);

}  // namespace akarix
