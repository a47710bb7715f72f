#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace akarix {

/// The other processes of this machine that have a file open, "akarix (1234)" each; nothing where the
/// machine does not tell. Processes of other users are seen by the machine's administrator alone.
std::optional<QStringList> FileHolders(const QString& localPath);

}  // namespace akarix
