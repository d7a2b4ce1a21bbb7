#ifndef VARO_BENCH_TIMING_HPP
#define VARO_BENCH_TIMING_HPP

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>
#include <vector>

/// Times that a busy machine does not spoil.
///
/// What is to be compared takes turns, in rounds of some milliseconds each. Of every turn the median call counts, which
/// passes over the calls that were interrupted; and of all rounds the one with the smallest median, which passes over
/// the rounds during which something else had the caches or the clock of the processor.
namespace Bench {

using Action = std::function<void()>;

/// The median time of one call in microseconds, over the calls that fit in about 20 milliseconds, at least three.
inline double medianMicroseconds(Action const& action)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> times;
    auto const end = Clock::now() + std::chrono::milliseconds(20);
    while (times.size() < 3 || (Clock::now() < end && times.size() < 20000)) {
        auto const begin = Clock::now();
        action();
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    }
    auto const middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/// The smallest of the medians of each action, over about a second per action and at least three rounds.
inline std::vector<double> smallestMedians(std::vector<Action> const& actions)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> smallest(actions.size(), std::numeric_limits<double>::infinity());
    auto const end = Clock::now() + std::chrono::seconds(actions.size());
    for (int round = 0; round < 3 || Clock::now() < end; ++round) {
        for (std::size_t i = 0; i < actions.size(); ++i) {
            smallest[i] = std::min(smallest[i], medianMicroseconds(actions[i]));
        }
    }
    return smallest;
}

}  // namespace Bench

#endif
