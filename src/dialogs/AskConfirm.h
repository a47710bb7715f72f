#pragma once

#include <QString>

namespace akarix {

/// True when the first choice, which is selected at the start, was confirmed; the close box answers with the
/// second.
bool AskConfirm(const QString& question, const QString& first, const QString& second);
/// The same with the close box answering with the first, safe choice: True means refusal.
bool AskConfirmRev(const QString& question, const QString& first, const QString& second);

}  // namespace akarix
