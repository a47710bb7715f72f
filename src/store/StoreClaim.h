#pragma once

#include <QLockFile>
#include <QString>
#include <chrono>

namespace akarix {

/// A claim to be alone with a store file: a companion program holds it while it changes the file, the desktop
/// program while it opens it. It is a mark beside the file, "Akarix.MDB.lock", that goes with its holder; one
/// left by a dead process of this machine is passed over.
class StoreClaim {
 public:
    /// \param patience how long another one's claim is waited for
    explicit StoreClaim(const QString& path,
                        std::chrono::milliseconds patience = std::chrono::milliseconds(0));

    /// Who else has the claim, "akarix-admin (1234)", with the name of his machine when it is another one.
    /// Empty when the claim is ours, or when the folder takes no mark.
    const QString& holder() const { return holder_; }

 private:
    QLockFile mark_;
    QString holder_;
};

}  // namespace akarix
