#pragma once

#include <functional>

#include "platform/runtime/RuntimeError.h"

namespace akarix {

/// The number of the error that a step raises, 0 for none. \param text takes what the error says
inline int Raised(const std::function<void()>& step, QString* text = nullptr) {
    try {
        step();
    } catch (const RuntimeError& error) {
        if (text != nullptr) *text = error.description();
        return error.number();
    }
    return 0;
}

}  // namespace akarix
