#include "sample/Dice.h"

namespace akarix::sample {

std::uint64_t Dice::next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

int Dice::below(int count) {
    return static_cast<int>((next() >> 33) % static_cast<std::uint64_t>(count));
}

int Dice::between(int low, int high) {
    return low + below(high - low + 1);
}

}  // namespace akarix::sample
