// How long loading takes, side by side; how long it takes to look for names, and what a second thread brings. Prints
// the tables of bench/compare.
//
//     load_times [JOINTS...]
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <time.h>

#include "flat_robot.hpp"
#include "humanoid.hpp"
#include "loaders.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "timing.hpp"

namespace {

using Bench::Loader;
using Clock = std::chrono::steady_clock;

struct LoadTime {
    double load = std::numeric_limits<double>::infinity();  ///< us
    double drop = std::numeric_limits<double>::infinity();  ///< us, the model's destruction
};

double microsecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
}

/// Of the processor, in microseconds: on a busy machine it takes turns with others.
double processorTime()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e6 * static_cast<double>(time.tv_sec) + 1e-3 * static_cast<double>(time.tv_nsec);
}

/// What is compared takes turns, in rounds of about 50 milliseconds each, and the fastest load counts: whatever else
/// runs on the machine only makes it slower.
std::vector<LoadTime> smallestTimes(std::vector<std::string> const& texts)
{
    constexpr int rounds = 10;
    std::vector<LoadTime> smallest(texts.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            auto const end = Clock::now() + std::chrono::milliseconds(50);
            do {
                double const begin = processorTime();
                auto model = Bench::loaders()[i].load(texts[i]);
                double const loaded = processorTime();
                model.reset();
                smallest[i].load = std::min(smallest[i].load, loaded - begin);
                smallest[i].drop = std::min(smallest[i].drop, processorTime() - loaded);
            } while (Clock::now() < end);
        }
    }
    return smallest;
}

/// Growth is what the time grows by where the robot grows, as a power of that.
void printLoading(std::vector<int> const& sizes)
{
    std::printf("| joints | loader | load (us) | to the floor | growth | drop (us) | drop to load |\n");
    std::printf("| ---: | --- | ---: | ---: | ---: | ---: | ---: |\n");
    std::map<std::string, double> before;
    for (std::size_t size = 0; size < sizes.size(); ++size) {
        std::vector<std::string> texts;
        for (Loader const& loader : Bench::loaders()) {
            texts.push_back(loader.textOf(sizes[size]));
        }
        auto const times = smallestTimes(texts);
        double floor = 0.0;
        for (std::size_t i = 0; i < times.size(); ++i) {
            auto const& [load, drop] = times[i];
            std::string const& name = Bench::loaders()[i].name;
            floor = Bench::loaders()[i].isFloor ? load : floor;
            std::printf("| %d | %s | %.1f | %.2f |", sizes[size], name.c_str(), load, load / floor);
            if (size > 0) {
                std::printf(" %.2f", std::log(load / before[name]) /
                                         std::log(static_cast<double>(sizes[size]) / sizes[size - 1]));
            }
            std::printf(" | %.1f | %.0f %% |\n", drop, 100.0 * drop / load);
            before[name] = load;
        }
        std::fflush(stdout);
    }
}

/// Nanoseconds per name, of at most a thousand in an order of chance.
template <class Find>
double timeToFind(std::vector<std::string> names, Find const& find)
{
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    names.resize(std::min<std::size_t>(names.size(), 1000));
    std::size_t found = 0;
    double const pass = Bench::smallestMedians({[&] {
        for (std::string const& name : names) {
            found += find(name) ? 1 : 0;
        }
    }})[0];
    return found % names.size() == 0 ? 1000.0 * pass / static_cast<double>(names.size()) : std::nan("");
}

void printLookUps()
{
    std::printf("\n| names | floor, links (ns) | links | joints | motors by kind |\n");
    std::printf("| ---: | ---: | ---: | ---: | ---: |\n");
    for (int const joints : {100, 1000, 10000}) {
        std::string const text = Bench::HumanoidWriter().write(joints);
        auto const flat = Bench::readFlat(text);
        Sim::Model const model(text);
        std::vector<std::string> links;
        std::vector<std::string> names;
        for (Sim::Joint const* joint : model.joints()) {
            names.push_back(joint->name());
            links.push_back(joint->childLink()->descriptionName());
        }
        std::printf("| %d | %.1f | %.1f | %.1f | %.1f |\n", joints,
                    timeToFind(links, [&](auto const& name) { return flat->linkByName.count(name) != 0; }),
                    timeToFind(links, [&](auto const& name) { return model.link(name) != nullptr; }),
                    timeToFind(names, [&](auto const& name) { return model.joint(name) != nullptr; }),
                    timeToFind(names, [&](auto const& name) { return model.angleActuator(name) != nullptr; }));
        std::fflush(stdout);
    }
}

/// How many loads that many threads get done in a second.
double throughput(Loader const& loader, std::string const& text, int threads)
{
    std::atomic<int> loads = 0;
    std::vector<std::thread> workers;
    auto const begin = Clock::now();
    auto const end = begin + std::chrono::seconds(1);
    for (int i = 0; i < threads; ++i) {
        workers.emplace_back([&] {
            for (; Clock::now() < end; ++loads) {
                loader.load(text);
            }
        });
    }
    for (std::thread& worker : workers) {
        worker.join();
    }
    return 1e6 * loads / microsecondsSince(begin);
}

void printThreads()
{
    std::printf("\n| loader | loads a second, one thread | two threads | ratio |\n| --- | ---: | ---: | ---: |\n");
    for (Loader const& loader : Bench::loaders()) {
        std::string const text = loader.textOf(100);
        double one = 0.0;
        double two = 0.0;
        for (int round = 0; round < 5; ++round) {
            one = std::max(one, throughput(loader, text, 1));
            two = std::max(two, throughput(loader, text, 2));
        }
        std::printf("| %s | %.0f | %.0f | %.2f |\n", loader.name.c_str(), one, two, two / one);
        std::fflush(stdout);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i) {
        sizes.push_back(std::atoi(argv[i]));
    }
    printLoading(sizes.empty() ? std::vector<int>{30, 100, 1000, 10000} : sizes);
    printLookUps();
    printThreads();
}
