#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

#include "configurations.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

namespace {

thread_local std::size_t allocations = 0;

}  // namespace

// Counted for the whole program, and otherwise as the standard library does it.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace KinematicsTest {

namespace {

template <class Action>
std::size_t allocationsOf(Action const& action)
{
    std::size_t const before = allocations;
    action();
    return allocations - before;
}

TEST(Allocations, PosesAndJacobiansNeedNone)
{
    std::vector<int> kept;
    EXPECT_EQ(allocationsOf([&] { kept.resize(1000); }), 1U);  // it does count
    std::mt19937 generator;
    for (std::string const& file : ownRobots()) {
        SCOPED_TRACE(file);
        Sim::Model const model(file);
        Sim::Kinematics const kinematics(model);
        Sim::Configuration configuration = randomConfiguration(kinematics, generator);
        Sim::Configuration const other = randomConfiguration(kinematics, generator);
        Sim::Frame const& deepest = *model.links().back()->frame();
        std::vector<Sim::Pose> poses(kinematics.linkCount());
        std::vector<double> entries(6 * configuration.size());
        EXPECT_EQ(allocationsOf([&] {
                      configuration = other;
                      kinematics.linkPoses(configuration, poses.data(), poses.size());
                      kinematics.jacobian(configuration, deepest, entries.data(), entries.size(), &deepest);
                      poses.front() = kinematics.pose(configuration, deepest);
                  }),
                  0U);
    }
}

}  // namespace

}  // namespace KinematicsTest
