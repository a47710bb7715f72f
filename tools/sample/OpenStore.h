#pragma once

#include <QString>

namespace akarix::sample {

/// Opens a file as the program's own store (gDb) for as long as it lives, whatever the current directory.
class OpenStore {
 public:
    explicit OpenStore(const QString& path, bool readOnly = false);
    ~OpenStore();
    OpenStore(const OpenStore&) = delete;
    OpenStore& operator=(const OpenStore&) = delete;
};

}  // namespace akarix::sample
