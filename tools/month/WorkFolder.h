#pragma once

#include <QString>

#include "month/Options.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

/// The folder that a played month leaves.
class WorkFolder {
 public:
    /// Makes the folder, or empties one that an earlier run has left. Raises Failure for a folder with
    /// anything else in it: a dealer's own data may lie there; and for one whose dealer somebody has open.
    explicit WorkFolder(const QString& path);

    /// An absolute path in the folder.
    QString path(const QString& name) const;
    QString dealer() const { return path(u"dealer"_s); }
    QString database() const;
    /// What lies in the dealer's drive A.
    QString disk() const { return path(u"debit"_s); }

    /// Makes the dealer who has worked up to the month before, with templates, printing without previews.
    void makeDealer(const Options& options) const;

 private:
    void hangDrive() const;
    void copyTemplates(const QString& wished) const;

    QString root_;
};

}  // namespace akarix::month
