#pragma once

#include <QByteArray>
#include <QString>

namespace akarix {

/// The fixed first bytes of every file of the store. They are the salt of its key and, standing in the clear,
/// the mark by which a file of the store is known without its password.
QByteArray FileMark();

/// What a password opens a file with. Deriving takes some 30 ms, so the process keeps what it has derived.
struct StoreKey {
    QByteArray encryption;      ///< AES-256
    QByteArray authentication;  ///< HMAC-SHA1
};
StoreKey KeyOfPassword(const QString& password);

/// The page size of the file, and its tail of each page that holds no data: initial vector, HMAC, padding.
constexpr int kPageSize = 4096;
constexpr int kPageTail = 48;

}  // namespace akarix
