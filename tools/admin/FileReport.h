#pragma once

#include <QString>

#include "platform/cipher/FileCheck.h"

namespace akarix::admin {

/// Looks at a file with the dealer's password; an error becomes its words, so that a list can go on.
struct FileState {
    FileCheck check;
    QString faults;  ///< in a few words; empty for a sound file

    bool sound() const { return faults.isEmpty(); }
};
FileState StateOf(const QString& path);

}  // namespace akarix::admin
