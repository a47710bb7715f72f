#pragma once

#include <QByteArray>
#include <vector>

#include "platform/cipher/PageCipher.h"
#include "platform/cipher/RawFile.h"

namespace akarix {

/// The pages of a damaged file that still authenticate, deciphered.
class PageImage {
 public:
    PageImage(const RawFile& file, const PageCipher& cipher);

    int pageCount() const { return static_cast<int>(pages_.size()); }
    /// Empty for a page that is lost or does not exist.
    const QByteArray& page(int number) const;
    bool isEmpty() const { return readable_ == 0; }

 private:
    std::vector<QByteArray> pages_;
    int readable_ = 0;
};

}  // namespace akarix
