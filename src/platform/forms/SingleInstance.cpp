#include "platform/forms/SingleInstance.h"

#include <QDir>

#include "platform/runtime/Literals.h"
#include "platform/runtime/MachineMark.h"

namespace akarix {
namespace {

QString guardFolder;  ///< empty: the machine's own

QString GuardPath() {
    return (guardFolder.isEmpty() ? MachineMarkFolder() : guardFolder) + u"/akarix.lock"_s;
}

}  // namespace

SingleInstance::SingleInstance() : mark_(std::make_unique<MachineMark>(GuardPath())) {
    previous_ = !mark_->take(QDir::current().canonicalPath());
}

SingleInstance::~SingleInstance() = default;

std::optional<QString> SingleInstance::RunningIn() {
    return MachineMark::wordOf(GuardPath());
}

void SingleInstance::KeepIn(const QString& folder) {
    guardFolder = folder;
}

}  // namespace akarix
