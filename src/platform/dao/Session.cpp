#include "platform/dao/Session.h"

#include "platform/dialect/StoreError.h"

namespace akarix {

Session::Session(std::unique_ptr<Engine> engine)
    : engine_(std::move(engine)), translator_(std::make_unique<Translator>(engine_->catalogue())) {}

Engine& Session::engine() {
    if (!engine_) throw StoreError(3420);
    return *engine_;
}

BoundStatement Session::translate(const QString& sql) {
    const int version = engine().catalogueVersion();
    if (version != translatedVersion_) {
        translator_->clear();
        translatedVersion_ = version;
    }
    return translator_->translate(sql);
}

void Session::close() {
    engine();
    translator_.reset();
    const std::unique_ptr<Engine> closing = std::move(engine_);
    closing->close();
}

}  // namespace akarix
