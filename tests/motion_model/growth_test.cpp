#include <ctime>

#include "model_of.hpp"
#include "sim/model.hpp"

namespace {

std::string numbered(char const* stem, int number)
{
    return stem + std::to_string(number);
}

/// `count` joints in one chain, each with a hand and a mirror; as many chains of one joint on the root, not in order of
/// name, so that lists have to be merged at the front; and as many actuators, each on the one before.
void fill(FakeRobot& robot, int count)
{
    std::vector<std::string> joints;
    robot.addChain("Stack", "Torso", {"Actuator0"});
    for (int i = 0; i < count; ++i) {
        joints.push_back(numbered("Joint", i));
        robot.addActuator(numbered("Hand", i), joints.back(), {{numbered("Thumb", i), numbered("Tip", i)}});
        robot.addChain(numbered("Chain", i), "Torso", {numbered("End", count - i)});
        robot.addActuator(numbered("Actuator", i + 1), numbered("Actuator", i));
    }
    robot.addChain("Spine", "Torso", joints);
    robot.reflectionForced = joints;
}

/// Of this process alone, so that a busy machine does not count.
double secondsFor(int count)
{
    auto robot = std::make_unique<FakeRobot>();
    fill(*robot, count);
    std::clock_t const start = std::clock();
    Sim::Model const model({std::move(robot), {}, {}});  // which asks everything of every name
    EXPECT_FALSE(model.links().empty());
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// Sixteen times the robot takes sixteen times as long, and some more for caches; quadratic work would take 256 times.
TEST(Growth, IsLinearInTheSizeOfTheRobot)
{
    double ofSmallRobot = 0.0;
    for (int repeat = 0; repeat < 10; ++repeat) {
        ofSmallRobot += secondsFor(300) / 10;
    }
    EXPECT_LT(secondsFor(4800), 96 * ofSmallRobot);
}

}  // namespace
