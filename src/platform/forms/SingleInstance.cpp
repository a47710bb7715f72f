#include "platform/forms/SingleInstance.h"

#include <QDir>

#include "platform/runtime/MachineMark.h"

namespace akarix {
namespace {

QString guardFolder;  ///< empty: the machine's own

QString guardPath() {
    return (guardFolder.isEmpty() ? MachineMarkFolder() : guardFolder) + QStringLiteral("/akarix.lock");
}

}  // namespace

SingleInstance::SingleInstance() : mark_(std::make_unique<MachineMark>(guardPath())) {
    previous_ = !mark_->take(QDir::current().canonicalPath());
}

SingleInstance::~SingleInstance() = default;

std::optional<QString> SingleInstance::RunningIn() {
    return MachineMark::wordOf(guardPath());
}

void SingleInstance::KeepIn(const QString& folder) {
    guardFolder = folder;
}

}  // namespace akarix
