#pragma once

#include <span>

#include "platform/jet/Plan.h"

namespace akarix {

/// A function that the written statements call. The same arguments always give the same value; they come in
/// the stored form of their kinds. RuntimeError leaves it where the dialect raises.
struct SqlFunction {
    const char* name;
    int arguments;
    bool takesNull;  ///< otherwise a Null argument gives Null without a call
    StoreValue (*run)(const StoreValue* arguments);
};

std::span<const SqlFunction> sqlFunctions();
/// \param name one of the list.
const SqlFunction& sqlFunction(const char* name);

}  // namespace akarix
