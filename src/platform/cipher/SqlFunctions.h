#pragma once

#include <span>

#include "platform/dialect/Plan.h"

namespace akarix {

/// A function that the written statements call. The same arguments always give the same value; they come in
/// the stored form of their kinds. RuntimeError leaves it where the dialect raises.
struct SqlFunction {
    const char* name;
    int arguments;
    bool takesNull;  ///< otherwise a Null argument gives Null without a call
    StoreValue (*run)(const StoreValue* arguments);
};

std::span<const SqlFunction> SqlFunctions();
/// \param name one of the list.
const SqlFunction& FindFunction(const char* name);

}  // namespace akarix
