#ifndef VARO_BENCH_MEDIANS_HPP
#define VARO_BENCH_MEDIANS_HPP

#include <algorithm>
#include <chrono>
#include <vector>

namespace Bench {

/// The median time of one call in microseconds, over as many calls as fit in about half a second, at least five.
template <class Action>
double medianMicroseconds(Action const& action)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> times;
    auto const end = Clock::now() + std::chrono::milliseconds(500);
    while (times.size() < 5 || (Clock::now() < end && times.size() < 20000)) {
        auto const begin = Clock::now();
        action();
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    }
    auto const middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

}  // namespace Bench

#endif
