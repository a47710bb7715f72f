#pragma once

#include <QString>

#include "platform/forms/SingleInstance.h"

namespace akarix::admin {

/// Who has a database file open.
/// \param programRuns whether the desktop program is known to run; it counts where the machine does not tell
/// which files are open. Empty when nobody has; otherwise a sentence that says who.
QString holderOf(const QString& path, bool programRuns);

/// A command's claim to a file it is about to change: while it lives the desktop program does not start.
class FileClaim {
 public:
    explicit FileClaim(const QString& path);

    /// Why the file must be left alone; empty when the claim is good.
    const QString& refusal() const { return refusal_; }

 private:
    SingleInstance guard_;
    QString refusal_;
};

}  // namespace akarix::admin
