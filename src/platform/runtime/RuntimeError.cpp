#include "platform/runtime/RuntimeError.h"

#include <utility>

namespace akarix {

RuntimeError::RuntimeError(int number) : RuntimeError(number, ErrorText(number)) {}

RuntimeError::RuntimeError(int number, QString description)
    : RuntimeError(number, std::move(description), QString()) {}

RuntimeError::RuntimeError(int number, QString description, QString source)
    : number_(number),
      description_(std::move(description)),
      source_(std::move(source)),
      what_(QByteArray::number(number) + ": " + description_.toUtf8()) {}

}  // namespace akarix
