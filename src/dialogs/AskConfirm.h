#pragma once

#include <QString>

namespace akarix {

/// True when the first answer, which is selected at the start, was confirmed; the close box gives the second.
bool AskConfirm(const QString& question, const QString& first, const QString& second);
/// Before what cannot be undone: the first answer, selected at the start and what the close box gives, is the
/// safe one. True means refusal.
bool AskConfirmRev(const QString& question, const QString& first, const QString& second);

}  // namespace akarix
