#include "platform/cipher/PageCipher.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <array>
#include <memory>

namespace akarix {
namespace {

constexpr int kVectorBytes = 16;
constexpr int kMacBytes = 20;
constexpr int kDataEnd = kPageSize - kPageTail;

int DataStart(int number) {
    return number == 1 ? static_cast<int>(FileMark().size()) : 0;
}

const unsigned char* Bytes(const QByteArray& data, int from = 0) {
    return reinterpret_cast<const unsigned char*>(data.constData()) + from;
}

}  // namespace

bool PageCipher::authentic(const QByteArray& page, int number) const {
    if (page.size() != kPageSize) return false;
    const int start = DataStart(number);
    QByteArray covered = page.mid(start, kDataEnd + kVectorBytes - start);
    for (int shift = 0; shift < 32; shift += 8)
        covered.append(static_cast<char>((static_cast<unsigned>(number) >> shift) & 0xffU));
    std::array<unsigned char, EVP_MAX_MD_SIZE> mac{};
    unsigned int length = 0;
    HMAC(EVP_sha1(), key_.authentication.constData(), static_cast<int>(key_.authentication.size()),
         Bytes(covered), static_cast<std::size_t>(covered.size()), mac.data(), &length);
    return length == kMacBytes &&
           CRYPTO_memcmp(mac.data(), Bytes(page, kDataEnd + kVectorBytes), kMacBytes) == 0;
}

std::optional<QByteArray> PageCipher::open(const QByteArray& page, int number) const {
    if (!authentic(page, number)) return std::nullopt;
    const int start = DataStart(number);
    QByteArray data(kDataEnd, '\0');
    const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(EVP_CIPHER_CTX_new(),
                                                                                  &EVP_CIPHER_CTX_free);
    int length = 0;
    if (!context ||
        EVP_DecryptInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, Bytes(key_.encryption),
                           Bytes(page, kDataEnd)) != 1 ||
        EVP_CIPHER_CTX_set_padding(context.get(), 0) != 1 ||
        EVP_DecryptUpdate(context.get(), reinterpret_cast<unsigned char*>(data.data()) + start, &length,
                          Bytes(page, start), kDataEnd - start) != 1)
        return std::nullopt;
    return data;
}

}  // namespace akarix
