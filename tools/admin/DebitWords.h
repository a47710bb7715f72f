#pragma once

#include "debit/DebitLayout.h"

namespace akarix::admin {

/// "ヘッダー", "データ", "トレーラ", "エンド", or "不明".
QString DebitKindName(char kind);
/// What a result code says; empty for one that is not in the list.
QString DebitResultName(char code);

/// Why a field's bytes do not fit the layout; empty when they do.
QString FieldDeparture(const DebitField& field, const QByteArray& bytes);

}  // namespace akarix::admin
