#include <set>

#include <gmock/gmock.h>

#include "example_robots.hpp"
#include "sim/model.hpp"

using testing::IsEmpty;
using testing::SizeIs;

namespace {

TEST(ExampleRobots, LoadSilently)
{
    for (char const* const robot : Tests::exampleRobots) {
        SCOPED_TRACE(robot);
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        Sim::Model const model(Tests::examplePath(robot));
        EXPECT_THAT(testing::internal::GetCapturedStdout(), IsEmpty());
        EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
        EXPECT_THAT(model.links(), SizeIs(model.joints().size() + 1));
    }
}

TEST(ExampleRobots, ShowEveryKindOfDeviceThatLoadingMakes)
{
    std::set<int> actuators;
    std::set<int> sensors;
    for (char const* const robot : Tests::exampleRobots) {
        Sim::Model const model(Tests::examplePath(robot));
        for (Sim::Actuator const* actuator : model.actuators()) {
            actuators.insert(actuator->type());
        }
        for (Sim::Sensor const* sensor : model.sensors()) {
            sensors.insert(sensor->type());
        }
    }
    using Actuator = Sim::Actuator;
    using Sensor = Sim::Sensor;
    EXPECT_EQ(actuators, (std::set<int>{Actuator::Angle, Actuator::Coupled, Actuator::Torque, Actuator::AngleSpeed,
                                        Actuator::WheelVelocity, Actuator::LED}));
    EXPECT_EQ(sensors, (std::set<int>{Sensor::Angle, Sensor::Coupled, Sensor::Sonar, Sensor::Camera, Sensor::FSR,
                                      Sensor::Inertial, Sensor::Bumper, Sensor::Tactile, Sensor::ArrayDepth,
                                      Sensor::CameraDepth, Sensor::Microphone}));
}

}  // namespace
