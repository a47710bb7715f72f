#include "platform/forms/SingleInstance.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <QSysInfo>

namespace akarix {
namespace {

/// The user's own folder; the machine's id keeps desks apart that share a home over the network.
QString guardPath() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    if (folder.isEmpty() || !QDir().mkpath(folder)) folder = QDir::tempPath();
    return QStringLiteral("%1/akarix-%2.lock").arg(folder, QString::fromLatin1(QSysInfo::machineUniqueId()));
}

}  // namespace

struct SingleInstance::Impl {
    QLockFile lock{guardPath()};
    bool previous = false;
};

SingleInstance::SingleInstance() : impl_(std::make_unique<Impl>()) {
    // A guard left behind by a killed process is known by its process number, not by its age.
    impl_->lock.setStaleLockTime(0);
    impl_->previous = !impl_->lock.tryLock(0) && impl_->lock.error() == QLockFile::LockFailedError;
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::PrevInstance() const {
    return impl_->previous;
}

}  // namespace akarix
