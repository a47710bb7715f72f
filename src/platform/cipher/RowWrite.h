#pragma once

#include <QByteArray>
#include <vector>

#include "platform/dialect/Schema.h"

namespace akarix {

/// What AddNew and Edit come to: one row, of which only the columns that were set are written.
enum class RowWrite { Insert, Update };

/// The engine's text of it: the columns' values as ?1, ?2 ...; behind them, of an update, the row's number.
QByteArray RowWriteText(RowWrite kind, const TableDef& table, const std::vector<QString>& columns);

}  // namespace akarix
