#pragma once

#include <QString>

namespace akarix {

/// Where a bank's file stands: "X:\folder\name" parts behind the folder, any other text is a name on the
/// floppy. A folder of several levels parts behind the first, a drive without a folder not at all.
struct DebitPath {
    QString folder;  ///< with its "\" at the end
    QString name;

    QString whole() const { return folder + name; }
};

/// The drive of the floppy disks.
QString FloppyFolder();
DebitPath SplitDebitPath(const QString& fName);
/// The same, and a folder of its own is made; that it cannot be made shows at the opening of the file.
DebitPath PrepareDebitPath(const QString& fName);

}  // namespace akarix
