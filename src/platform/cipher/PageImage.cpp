#include "platform/cipher/PageImage.h"

namespace akarix {

PageImage::PageImage(const RawFile& file, const PageCipher& cipher) {
    const int count = file.pageCount();
    pages_.resize(static_cast<std::size_t>(count));
    for (int number = 1; number <= count; ++number) {
        if (auto data = cipher.open(file.page(number), number)) {
            pages_[static_cast<std::size_t>(number - 1)] = std::move(*data);
            ++readable_;
        }
    }
}

const QByteArray& PageImage::page(int number) const {
    static const QByteArray none;
    return number >= 1 && number <= pageCount() ? pages_[static_cast<std::size_t>(number - 1)] : none;
}

}  // namespace akarix
