#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

namespace akarix::bench {

using Clock = std::chrono::steady_clock;

inline double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// What a work took: by the clock on the wall, and of the processor. Where others share the machine the
/// second is the steadier one, but it knows nothing of the disk.
struct Time {
    double wall = 0;
    double processor = 0;
};

inline double ProcessorMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

template <class Work>
Time Measure(Work&& work) {
    const Clock::time_point start = Clock::now();
    const double processor = ProcessorMilliseconds();
    work();
    return {MillisecondsSince(start), ProcessorMilliseconds() - processor};
}

/// The medians of both, each for itself.
inline Time Median(const std::vector<Time>& times) {
    const auto middle = [&](double Time::*of) {
        std::vector<double> values;
        values.reserve(times.size());
        for (const Time& time : times)
            values.push_back(time.*of);
        const auto place = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), place, values.end());
        return *place;
    };
    return {middle(&Time::wall), middle(&Time::processor)};
}

/// Times of the product and of its peer, taken turn by turn so that both meet the same state of the machine.
struct Race {
    std::vector<Time> product;
    std::vector<Time> peer;
};

/// What a work is held to: so many times its peer, or so many milliseconds.
struct Target {
    enum class Kind { Times, Milliseconds };
    Kind kind;
    double most;
};

inline Target Times(double most) {
    return {Target::Kind::Times, most};
}
inline Target Under(double milliseconds) {
    return {Target::Kind::Milliseconds, milliseconds};
}

/// The head of the table of figures. Every program prints its own; the collecting script keeps the first.
inline void PrintHead() {
    std::puts("| work | product ms (CPU) | peer ms (CPU) | ratio (CPU) | target | |");
    std::puts("|---|---:|---:|---:|---|---|");
}

inline void PrintRow(const std::string& work, Time product, std::optional<Time> peer,
                     std::optional<Target> target) {
    std::printf("| %s | %.3g (%.3g) |", work.c_str(), product.wall, product.processor);
    double reached = product.wall;
    if (peer) {
        std::printf(" %.3g (%.3g) | %.2f (%.2f) |", peer->wall, peer->processor, product.wall / peer->wall,
                    product.processor / peer->processor);
    } else {
        std::printf(" - | - |");
    }
    if (!target) {
        std::puts(" - | |");
        return;
    }
    const bool byTimes = target->kind == Target::Kind::Times;
    if (byTimes && peer) reached = product.wall / peer->wall;
    std::printf(byTimes ? " at most %g times | %s |\n" : " under %g ms | %s |\n", target->most,
                reached <= target->most ? "met" : "MISSED");
    std::fflush(stdout);
}

inline void PrintRow(const std::string& work, const Race& race, Target target) {
    PrintRow(work, Median(race.product), Median(race.peer), target);
}

}  // namespace akarix::bench
