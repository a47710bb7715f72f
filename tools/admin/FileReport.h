#pragma once

#include <QString>

#include "platform/cipher/FileCheck.h"

namespace akarix::admin {

/// "" for a sound file; what is wrong with it, in a few words, otherwise.
QString FaultsOf(const FileCheck& check);

/// Looks at a file with the dealer's password; an error becomes its words, so that a list can go on.
struct FileState {
    FileCheck check;
    QString faults;

    bool sound() const { return faults.isEmpty(); }
};
FileState StateOf(const QString& path);

}  // namespace akarix::admin
