#include "ledger/MeterUse.h"

namespace akarix {

std::int64_t MeterUse(std::int64_t before, std::int64_t oldEnd, std::int64_t newStart, std::int64_t now) {
    return oldEnd != 0 ? oldEnd - before + now - newStart : now - before;
}

std::int64_t RoundShown(std::int64_t value, std::int64_t step) {
    const std::int64_t size = value < 0 ? -value : value;
    const std::int64_t rounded = (size + step / 2) / step * step;
    return value < 0 ? -rounded : rounded;
}

}  // namespace akarix
