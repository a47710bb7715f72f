#pragma once

#include <QByteArray>
#include <optional>

#include "platform/cipher/StoreKey.h"

namespace akarix {

/// Opens single pages of the file without the engine: SQLCipher's page format of its third version. A page
/// ends in a vector of 16 bytes, an HMAC-SHA1 over data, vector and page number, and padding; the first page
/// begins with the file mark instead of data.
class PageCipher {
 public:
    explicit PageCipher(const StoreKey& key) : key_(key) {}

    /// \param number from 1
    bool authentic(const QByteArray& page, int number) const;
    /// The data of the page, laid out as the engine sees it; none when it does not authenticate.
    std::optional<QByteArray> open(const QByteArray& page, int number) const;

 private:
    StoreKey key_;
};

}  // namespace akarix
