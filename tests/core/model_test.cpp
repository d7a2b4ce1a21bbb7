#include "sim/model.hpp"

#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/friction.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/sensor.hpp"
#include "sim/single_depth_sensor.hpp"
#include "throws.hpp"

namespace {

using namespace Tests;

}  // namespace

TEST(Model, AnswersUnknownNamesWithNullOrNothing)
{
    Sim::Model const model(robot(joint("J") + chain("C", "Base", {"J"})));
    EXPECT_EQ(model.joint("j"), nullptr);
    EXPECT_EQ(model.joint("Base"), nullptr);
    EXPECT_EQ(model.link("J"), nullptr);
    EXPECT_EQ(model.sensor(""), nullptr);
    EXPECT_EQ(model.actuator("C"), nullptr);
    EXPECT_EQ(model.angleActuator("X"), nullptr);
    EXPECT_EQ(model.jointGroup("J"), nullptr);
    EXPECT_EQ(model.actuatorGroup("J"), nullptr);
    EXPECT_EQ(model.jointSymmetry("J"), nullptr);
    EXPECT_TRUE(model.jointGroupsOfJoint("X").empty());
    EXPECT_TRUE(model.actuatorGroupsOfJoint("X").empty());
    EXPECT_TRUE(model.ledActuators("X").empty());
}

TEST(Model, LooksUpByKindPastElementsOfOtherKindsWithTheName)
{
    // The angle sensor of joint "Eye" precedes the camera of the same name.
    Sim::Model const model(robot(joint("Eye") + chain("C", "Base", {"Eye"}) +
                                 sensor("Eye", "Eye", "camera", attribute("resolutions", "640 480"))));
    EXPECT_EQ(model.sensor("Eye")->type(), Sim::Sensor::Angle);
    ASSERT_NE(model.cameraSensor("Eye"), nullptr);
    EXPECT_EQ(model.cameraSensor("Eye")->width(), 640);
    EXPECT_EQ(model.sensors().size(), 2U);
    EXPECT_EQ(model.cameraSensors().size(), 1U);
    EXPECT_TRUE(model.sonarSensors().empty());
}

TEST(Model, SaysOnEveryCallThatTheInfraredQueriesAreDeprecated)
{
    Sim::Model model(robot(""));
    testing::internal::CaptureStdout();
    EXPECT_EQ(model.depthInfraredSensor("X"), nullptr);
    EXPECT_TRUE(model.depthInfraredSensors().empty());
    Sim::Model const target(std::move(model));
    EXPECT_EQ(messageOf<std::runtime_error>([&] { static_cast<void>(model.depthInfraredSensor("X")); }),
              "Could not query Model as it seems not correctly constructed.");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "depthInfraredSensor is deprecated, use singleDepthSensor instead.\n"
              "depthInfraredSensors is deprecated, use singleDepthSensors instead.\n"
              "depthInfraredSensor is deprecated, use singleDepthSensor instead.\n");
}

TEST(Model, KnowsFrictionBetweenMaterials)
{
    float forth = 0.0F;
    float back = 0.0F;
    float untouched = 7.0F;
    EXPECT_TRUE(Sim::frictionCoeff("steel", "aluminium", forth));
    EXPECT_TRUE(Sim::frictionCoeff("aluminium", "steel", back));
    EXPECT_EQ(forth, back);
    EXPECT_FALSE(Sim::frictionCoeff("steel", "moonlight", untouched));
    EXPECT_EQ(untouched, 7.0F);
}
