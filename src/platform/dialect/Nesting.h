#pragma once

#include "platform/dialect/DialectError.h"

namespace akarix {

/// Counts the levels of a recursive reader while it lives; past the limit it raises 3360, long before the
/// stack of the process or the engine's own limit is reached.
class Nesting {
 public:
    static constexpr int kMost = 200;        ///< parentheses, NOT and signs inside each other
    static constexpr int kMostLevels = 900;  ///< of a tree: a chain of operators is one level each

    explicit Nesting(int& level) : level_(level) {
        if (++level_ > kMost) {
            --level_;
            throw TooComplex();
        }
    }
    ~Nesting() { --level_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

 private:
    int& level_;
};

}  // namespace akarix
