#pragma once

#include "platform/runtime/RuntimeError.h"

namespace akarix {

/// The number of the RuntimeError that the action raises, or 0.
template <class Action>
int Raised(Action action) {
    try {
        static_cast<void>(action());
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace akarix
