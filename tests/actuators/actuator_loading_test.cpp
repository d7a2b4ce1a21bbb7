#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/model.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;

std::string const arm = joint("Elbow") + chain("Arm", "Base", {"Elbow"});

std::vector<int> typesOf(Sim::Model const& model)
{
    std::vector<int> types;
    for (Sim::Actuator const* each : model.actuators()) {
        types.push_back(each->type());
    }
    return types;
}

template <class T>
std::vector<float> rangeOf(T const* actuator)
{
    return {actuator->startValue(), actuator->minValue(), actuator->maxValue()};
}

}  // namespace

TEST(ActuatorLoading, AddsTorqueAndSpeedActuatorsByTheModelsName)
{
    using Type = Sim::Actuator::Type;
    for (char const* name : {"Plain", "helvo", "SpecialSimulatio"}) {
        EXPECT_THAT(typesOf(Sim::Model(robot(arm, name))), ElementsAre(Type::Angle)) << name;
    }
    for (char const* name : {"Helvo", "aHelvoB", "XSpecialSimulation"}) {
        Sim::Model const model(robot(arm, name));
        EXPECT_THAT(typesOf(model), ElementsAre(Type::Angle, Type::Torque, Type::AngleSpeed)) << name;
        EXPECT_THAT(rangeOf(model.torqueActuator("Elbow")), ElementsAre(0.0F, -100.0F, 100.0F));
        EXPECT_THAT(rangeOf(model.angleSpeedActuator("Elbow")), ElementsAre(0.0F, -10.0F, 10.0F));
    }
}

TEST(ActuatorLoading, RegistersWheelTorqueActuatorsOnRequest)
{
    Sim::ModelImpl model(robot(arm));
    auto const added = model.addWheelTorqueActuator({}, "W", {"key"}, 3.0F, {});
    EXPECT_EQ(model.actuators().back(), added);
    EXPECT_EQ(model.actuator<Sim::WheelTorqueActuator>("W")->maxTorque(), 3.0F);
}

TEST(CoupledActuators, ComeByNameBehindTheMotorsOfJointsAndMayDriveNothing)
{
    Sim::Model const model(robot(arm + actuator("Hand", "Elbow", "") + actuator("Claw", "Elbow", "")));
    EXPECT_THAT(namesOf(model.actuators()), ElementsAre("Elbow", "Claw", "Hand"));
    EXPECT_TRUE(model.coupledActuator("Claw")->controlledJointAndRatios().empty());
}

TEST(ActuatorLoading, MakesNothingOfJointsWithoutMotorButKeepsTheirSymmetries)
{
    std::string const passive = "motor=\"false\"";
    Sim::Model const model(robot(joint("LToe", mirror("RToe"), passive) + joint("RToe", mirror("LToe"), passive) +
                                     joint("Knee") + chain("Leg", "Base", {"LToe", "Knee"}) +
                                     chain("Other", "Base", {"RToe"}) + actuator("Claw", "LToe", ""),
                                 "SpecialSimulation"));
    EXPECT_THAT(namesOf(model.actuators()), ElementsAre("Knee", "Knee", "Knee", "Claw"));
    EXPECT_THAT(namesOf(model.sensors()), ElementsAre("Knee", "Knee", "Knee", "Claw"));
    EXPECT_THAT(namesOf(model.actuatorGroup("Leg")->actuators()), ElementsAre("Knee", "Claw"));
    EXPECT_TRUE(model.actuatorGroup("Other")->actuators().empty());
    EXPECT_THAT(namesOf(model.jointGroup("Leg")->joints()), ElementsAre("LToe", "Knee"));
    ASSERT_NE(model.jointSymmetry("LToe"), nullptr);
    EXPECT_EQ(model.jointSymmetry("LToe")->symmetricJoint(model.joint("LToe")), model.joint("RToe"));
}

TEST(LEDActuators, ComeLastWithTheirGroupsAndColour)
{
    auto const led = [](std::string const& name, std::string const& groups, std::string const& color) {
        return sensor(name, "Elbow", "led", attribute("groups", groups) + attribute("color", color));
    };
    Sim::Model const model(robot(arm + led("B", "X Y Y", "0 255 0") + led("A", "Y", "255 0 0") +
                                 led("C", "Z", "0 0 255") + led("D", "Z", "1 2 3 4 5 255") +
                                 sensor("E", "Base", "led") + wheel("W", "Elbow")));
    EXPECT_THAT(namesOf(model.actuators()), ElementsAre("Elbow", "W", "A", "B", "C", "D", "E"));
    EXPECT_THAT(namesOf(model.ledActuators("")), ElementsAre("A", "B", "C", "D", "E"));
    EXPECT_THAT(namesOf(model.ledActuators("Y")), ElementsAre("A", "B"));
    EXPECT_THAT(namesOf(model.ledActuators("X")), ElementsAre("B"));
    EXPECT_TRUE(model.ledActuators("x").empty());
    std::vector<int> colors;
    for (Sim::LEDActuator const* each : model.ledActuators("")) {
        colors.push_back(each->color());
    }
    using Color = Sim::LEDActuator::Color;
    EXPECT_THAT(colors, ElementsAre(Color::Red, Color::Green, Color::Blue, Color::Blue, Color::Blue))
        << "blue too for index 5, which is no colour, and for none";
    EXPECT_EQ(model.ledActuator("E")->shortname(), "");
}
