#pragma once

#include <cstddef>
#include <cstdint>

namespace akarix::sample {

/// A small generator of its own (SplitMix64): the library's distributions differ between compilers, and the
/// sample has to be the same everywhere.
class Dice {
 public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next();
    /// 0 to count - 1.
    int below(int count);
    /// From low to high, both included.
    int between(int low, int high);
    bool percent(int chance) { return below(100) < chance; }
    bool permille(int chance) { return below(1000) < chance; }

    template <class T, std::size_t N>
    const T& pick(const T (&list)[N]) {
        return list[static_cast<std::size_t>(below(static_cast<int>(N)))];
    }

 private:
    std::uint64_t state_;
};

}  // namespace akarix::sample
