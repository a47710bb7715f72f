#include "platform/jet/Session.h"

#include "platform/jet/StoreError.h"

namespace akarix {

Session::Session(std::unique_ptr<Engine> engine)
    : engine_(std::move(engine)), translator_(std::make_unique<Translator>(engine_->catalogue())) {}

Engine& Session::engine() {
    if (!engine_) {
        throw StoreError(3420);
    }
    return *engine_;
}

BoundStatement Session::translate(const QString& sql) {
    engine();
    return translator_->translate(sql);
}

void Session::define(const BoundStatement& statement) {
    engine().define(statement);
    translator_->clear();
}

void Session::close() {
    engine();
    translator_.reset();
    const std::unique_ptr<Engine> closing = std::move(engine_);
    closing->close();
}

}  // namespace akarix
