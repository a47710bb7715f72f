#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace akarix {

/// What is found of a store file when each of its pages is looked at.
struct FileCheck {
    int pages = 0;
    std::vector<int> badPages;  ///< from 1; their seal is broken, so is what stands in them
    bool cutShort = false;      ///< the last page is not whole
    bool opens = false;         ///< the engine takes it
    QStringList disorder;       ///< the engine's own words on tables and indexes that do not agree

    bool sound() const { return badPages.empty() && opens && disorder.isEmpty(); }
};

/// Looks at every page of a file and at the order between them. What a dying process left half written is
/// played back before; else nothing is changed. 3024: no such file; 3031: another password; 3343: no page of
/// it is one of the store's; 3045: somebody is writing without an end.
FileCheck CheckStoreFile(const QString& path, const QString& password);

}  // namespace akarix
