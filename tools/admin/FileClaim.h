#pragma once

#include <QString>

#include "store/StoreClaim.h"

namespace akarix::admin {

/// Who has a database file open: empty when nobody has, otherwise a sentence that says who.
QString HolderOf(const QString& path);

/// A command's claim to a file it is about to change: while it lives the desktop program does not open the
/// file, and says why. On other files it works on.
class FileClaim {
 public:
    explicit FileClaim(const QString& path);

    /// Why the file must be left alone; empty when the claim is good.
    const QString& refusal() const { return refusal_; }

 private:
    StoreClaim claim_;
    QString refusal_;
};

}  // namespace akarix::admin
