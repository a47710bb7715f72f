#pragma once

#include <QString>

#include "platform/cipher/Sqlite.h"

namespace akarix {

struct OpenAs {
    bool exclusive = false;
    bool readOnly = false;
};

/// Opens a file of the store and proves it sound. 3024: no such file; 3031: another password; 3343: damaged,
/// or no file of the store; 3260 and 3051: held or closed to us. A journal left by a process that died is
/// played back on the way.
Connection OpenStoreFile(const QString& path, const QString& password, OpenAs mode = {});

/// Makes an empty one. The path must be free.
Connection CreateStoreFile(const QString& path, const QString& password);

QString JournalOf(const QString& path);
/// Lets the engine play back a journal that is there, which makes whole what a dying process left half
/// written. Other damage is left for whoever looks for it.
void PlayBackJournal(const QString& path, const QString& password);

}  // namespace akarix
