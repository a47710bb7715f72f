#pragma once

#include <memory>

#include "platform/dialect/Engine.h"
#include "platform/dialect/StoreError.h"
#include "platform/dialect/Translator.h"

namespace akarix {

/// An open file as its database and the recordsets on it share it. Closing lets the file go at once; what is
/// still held of it raises 3420 from then on.
class Session {
 public:
    explicit Session(std::unique_ptr<Engine> engine)
        : engine_(std::move(engine)), translator_(engine_->catalogue()) {}

    bool isOpen() const { return engine_ != nullptr; }
    Engine& engine() const {
        if (!engine_) throw StoreError(3420);
        return *engine_;
    }
    BoundText translate(const QString& sql) {
        engine();
        return translator_.translate(sql);
    }
    void close() {
        engine();
        std::exchange(engine_, nullptr)->close();
    }

 private:
    std::unique_ptr<Engine> engine_;
    Translator translator_;
};

}  // namespace akarix
