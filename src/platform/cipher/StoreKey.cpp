#include "platform/cipher/StoreKey.h"

#include <openssl/evp.h>

#include <QHash>

#include "platform/dialect/StoreError.h"

namespace akarix {
namespace {

constexpr int kRounds = 64000;
constexpr int kAuthenticationRounds = 2;
constexpr int kKeyBytes = 32;
constexpr unsigned char kAuthenticationSaltMask = 0x3a;

QByteArray Derive(const QByteArray& secret, const QByteArray& salt, int rounds) {
    QByteArray key(kKeyBytes, '\0');
    if (PKCS5_PBKDF2_HMAC_SHA1(secret.constData(), static_cast<int>(secret.size()),
                               reinterpret_cast<const unsigned char*>(salt.constData()),
                               static_cast<int>(salt.size()), rounds, kKeyBytes,
                               reinterpret_cast<unsigned char*>(key.data())) != 1)
        throw StoreError(51);
    return key;
}

}  // namespace

QByteArray FileMark() {
    return QByteArrayLiteral("Akarix store v1\n");
}

StoreKey KeyOfPassword(const QString& password) {
    static QHash<QString, StoreKey> derived;
    const auto known = derived.constFind(password);
    if (known != derived.constEnd()) return *known;
    StoreKey key;
    key.encryption = Derive(password.toUtf8(), FileMark(), kRounds);
    QByteArray salt = FileMark();
    for (char& byte : salt)
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ kAuthenticationSaltMask);
    key.authentication = Derive(key.encryption, salt, kAuthenticationRounds);
    return *derived.insert(password, key);
}

}  // namespace akarix
