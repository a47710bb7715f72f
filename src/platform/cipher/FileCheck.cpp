#include "platform/cipher/FileCheck.h"

#include <QFileInfo>

#include "platform/cipher/PageCipher.h"
#include "platform/cipher/RawFile.h"
#include "platform/cipher/StoreFile.h"
#include "platform/dialect/StoreError.h"

namespace akarix {
namespace {

constexpr int kMostWords = 20;

// The engine keeps its lock bytes at this offset and writes nothing into their page.
constexpr int kLockPage = 0x40000000 / kPageSize + 1;

void CheckPages(const QString& path, const QString& password, FileCheck& found) {
    RawFile file(path);
    if (!file.lockShared()) throw StoreError(3045, path);
    const PageCipher cipher(KeyOfPassword(password));
    found.pages = file.pageCount();
    found.cutShort = file.size() % kPageSize != 0;
    for (int number = 1; number <= found.pages; ++number)
        if (number != kLockPage && !cipher.authentic(file.page(number), number))
            found.badPages.push_back(number);
    if (static_cast<int>(found.badPages.size()) == found.pages)
        throw StoreError(file.page(1).startsWith(FileMark()) ? 3031 : 3343, path);
}

void CheckOrder(const QString& path, const QString& password, FileCheck& found) {
    Connection connection;
    try {
        connection = OpenStoreFile(path, password, {.exclusive = false, .readOnly = true});
        found.opens = true;
    } catch (const RuntimeError& error) {
        if (error.number() != 3343) throw;
        return;
    }
    const Statement check =
        Prepare(connection.get(), "PRAGMA integrity_check(" + QByteArray::number(kMostWords) + ')');
    while (Step(connection.get(), check.get())) {
        const StoreValue words = ColumnValue(check.get(), 0);
        const auto* text = std::get_if<QString>(&words);
        if (text && *text != u"ok") found.disorder += *text;
    }
}

}  // namespace

FileCheck CheckStoreFile(const QString& path, const QString& password) {
    if (!QFileInfo(path).isFile()) throw StoreError(3024, path);
    if (QFileInfo(path).size() < kPageSize) throw StoreError(3343, path);
    PlayBackJournal(path, password);
    FileCheck found;
    CheckPages(path, password, found);
    CheckOrder(path, password, found);
    return found;
}

}  // namespace akarix
