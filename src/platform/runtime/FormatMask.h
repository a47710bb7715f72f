#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "platform/runtime/Decimal.h"

namespace akarix {

enum class MaskKind { Number, Date };

/// The sections of a mask, parted by semicolons outside of quoted characters.
QStringList MaskSections(const QString& mask);

/// The first character with a meaning of its own decides; separators only when no other does.
MaskKind MaskKindOf(const QString& mask);

/// Takes a backslash with its character or a text in quotes off the mask at `at`; nothing when neither is
/// there.
std::optional<QString> TakeQuoted(const QString& mask, qsizetype& at);

/// A number under a mask of up to three sections: positive, negative, zero. Rounds half away from zero.
QString FormatDecimal(const Decimal& number, const QString& mask);

}  // namespace akarix
