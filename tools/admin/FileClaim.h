#pragma once

#include <QString>

#include "store/StoreClaim.h"

namespace akarix::admin {

/// Who has a database file open: empty when nobody has, otherwise a sentence that says who.
QString HolderOf(const QString& path);

/// A command's claim to a file it is about to change: while it lives the desktop program does not open the
/// file, and says why. On other files it works on. Raises Stop when somebody has the file.
class FileClaim {
 public:
    explicit FileClaim(const QString& path);

 private:
    StoreClaim claim_;
};

}  // namespace akarix::admin
