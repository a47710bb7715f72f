#include "platform/dao/Engines.h"

#include <QFileInfo>
#include <QHash>

#include "platform/cipher/CipherEngine.h"
#include "platform/cipher/Repair.h"
#include "platform/cipher/StoreFile.h"

namespace akarix {
namespace {

QString& PasswordOf(const QString& path) {
    static QHash<QString, QString> passwords;
    return passwords[QFileInfo(path).absoluteFilePath()];
}

}  // namespace

std::unique_ptr<Engine> OpenEngine(const QString& path, const QString& password, bool exclusive,
                                   bool readOnly) {
    PasswordOf(path) = password;
    return std::make_unique<CipherEngine>(OpenStoreFile(path, password, {exclusive, readOnly}));
}

std::unique_ptr<Engine> CreateEngine(const QString& path, const QString& password) {
    PasswordOf(path) = password;
    return std::make_unique<CipherEngine>(CreateStoreFile(path, password));
}

std::unique_ptr<Engine> OpenEngineAgain(const QString& path) {
    return OpenEngine(path, PasswordOf(path), false, false);
}

void RepairFile(const QString& path) {
    RepairStoreFile(path, PasswordOf(path));
}

}  // namespace akarix
