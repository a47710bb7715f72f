#pragma once

#include <QString>

namespace akarix {

/// True when はい, which is selected at the start, was confirmed; the close box answers いいえ.
bool AskConfirm(const QString& question);
/// Before what cannot be undone: いいえ is selected at the start and what the close box answers. True means
/// refusal.
/// \param goOn the other answer
bool AskConfirmRev(const QString& question, const QString& goOn);

}  // namespace akarix
