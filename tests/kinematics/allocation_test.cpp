#include <gtest/gtest.h>

#include "allocations.hpp"
#include "configurations.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

namespace KinematicsTest {

namespace {

using Tests::allocationsOf;

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
