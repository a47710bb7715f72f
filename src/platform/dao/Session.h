#pragma once

#include <QString>
#include <memory>

#include "platform/dialect/Engine.h"
#include "platform/dialect/Translator.h"

namespace akarix {

/// An open file as its database and the recordsets on it share it. Closing lets the file go at once; what is
/// still held of it raises 3420 from then on.
class Session {
 public:
    explicit Session(std::unique_ptr<Engine> engine);

    Engine& engine();
    BoundStatement translate(const QString& sql);
    bool isOpen() const { return engine_ != nullptr; }
    void close();

 private:
    std::unique_ptr<Engine> engine_;
    std::unique_ptr<Translator> translator_;
    int translatedVersion_ = 0;
};

}  // namespace akarix
