#include <gmock/gmock.h>

#include "core/model_impl.hpp"
#include "descriptions.hpp"
#include "sim/model.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;
using Varo::Math::Transform;

std::string const arm =
    joint("Elbow", "<placement xyz='1 0 0'/><end xyz='0 0 2' rpy='0.5 0 0'/>") + chain("Arm", "Base", {"Elbow"});

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

TEST(ActuatorLoading, DrivesEveryJointOfAChainByItsAngle)
{
    Sim::Model const model(robot(arm + "<posture name='StandInit'><angle of='Elbow' value='0.25'/></posture>"));
    Sim::AngleActuator const* const elbow = model.angleActuator("Elbow");
    EXPECT_THAT(rangeOf(elbow), ElementsAre(0.25F, -1.0F, 1.5F));
    EXPECT_EQ(elbow->maxSpeed(), 4.0F);
    EXPECT_EQ(elbow->controlledJoint(), model.joint("Elbow"));
    EXPECT_FALSE(elbow->reflectionForced());
    EXPECT_EQ(elbow->reflectedSymmetric(), nullptr);
    EXPECT_THAT(elbow->dcmKeys(), ElementsAre("Elbow/Angle/Actuator"));
    // It sits where its joint does, although its frame hangs on the link behind the joint.
    EXPECT_EQ(elbow->frame()->parentFrame(), model.link("ElbowLink")->frame());
    EXPECT_TRUE(Sim::Frame::globalPosition(elbow->frame()).isNear(Transform::fromPosition(1, 0, 0), 1e-6F));
}

TEST(ActuatorLoading, AddsTorqueAndSpeedActuatorsByTheModelsName)
{
    using Type = Sim::Actuator::Type;
    for (char const* name : {"Plain", "helvo", "SpecialSimulatio"}) {
        EXPECT_THAT(typesOf(Sim::Model(robot(arm, name))), ElementsAre(Type::Angle)) << name;
    }
    for (char const* name : {"Helvo", "aHelvoB", "XSpecialSimulation"}) {
        Sim::Model const model(robot(arm, name));
        EXPECT_THAT(typesOf(model), ElementsAre(Type::Angle, Type::Torque, Type::AngleSpeed)) << name;
        EXPECT_THAT(namesOf(model.actuators()), ElementsAre("Elbow", "Elbow", "Elbow"));
        Sim::TorqueActuator const* const torque = model.torqueActuator("Elbow");
        Sim::AngleSpeedActuator const* const speed = model.angleSpeedActuator("Elbow");
        EXPECT_THAT(rangeOf(torque), ElementsAre(0.0F, -100.0F, 100.0F));
        EXPECT_THAT(rangeOf(speed), ElementsAre(0.0F, -10.0F, 10.0F));
        EXPECT_EQ(torque->frame(), model.angleActuator("Elbow")->frame());
        EXPECT_EQ(speed->controlledJoint(), model.joint("Elbow"));
        EXPECT_THAT(torque->dcmKeys(), ElementsAre("Elbow/Torque/Actuator"));
        EXPECT_THAT(speed->dcmKeys(), ElementsAre("Elbow/AngularSpeed/Actuator"));
    }
}

TEST(ActuatorLoading, DrivesWheelsBySpeedAlone)
{
    Sim::Model const model(robot(arm + wheel("W", "Elbow"), "Helvo"));
    ASSERT_EQ(model.wheelVelocityActuators().size(), 1U);
    EXPECT_TRUE(model.wheelTorqueActuators().empty());
    Sim::WheelVelocityActuator const* const actuator = model.wheelVelocityActuator("W");
    EXPECT_EQ(actuator->maxVelocity(), 12.0F);
    EXPECT_EQ(actuator->controlledJoint(), model.joint("W"));
    EXPECT_EQ(actuator->frame(), model.link("WLink")->frame());
    EXPECT_THAT(actuator->dcmKeys(), ElementsAre("W/AngularSpeed/Actuator"));
}

TEST(ActuatorLoading, RegistersWheelTorqueActuatorsOnRequest)
{
    Sim::ModelImpl model(robot(arm));
    auto const added = model.addWheelTorqueActuator({}, "W", {"key"}, 3.0F, {});
    EXPECT_EQ(model.actuators().back(), added);
    EXPECT_EQ(model.actuator<Sim::WheelTorqueActuator>("W")->maxTorque(), 3.0F);
    EXPECT_EQ(added->controlledJoint(), nullptr);
}

TEST(CoupledActuators, DriveTheirSubJointsByRatio)
{
    std::string const hand = "<placement xyz='0 0 3'/><group>" + subJoint("F1", "0.5") + subJoint("F2", "-1") +
                             "</group><group>" + subJoint("T1", "2") + "</group>";
    Sim::Model const model(robot(arm + actuator("Hand", "Elbow", hand) + actuator("Empty", "Elbow", "")));
    Sim::CoupledActuator const* const coupled = model.coupledActuator("Hand");
    using Driven = std::vector<std::pair<Sim::Joint const*, float>>;
    EXPECT_EQ(coupled->controlledJointAndRatios(),
              (Driven{{model.joint("F1"), 0.5F}, {model.joint("F2"), -1.0F}, {model.joint("T1"), 2.0F}}));
    EXPECT_THAT(rangeOf(coupled), ElementsAre(0.0F, 0.0F, 1.0F));
    EXPECT_EQ(coupled->maxSpeed(), 8.0F);
    EXPECT_THAT(coupled->dcmKeys(), ElementsAre("Hand/Angle/Actuator"));
    EXPECT_EQ(coupled->frame()->parentFrame(), model.joint("Elbow")->frame());
    Transform const expected = (Transform::fromPosition(0, 0, 3) * Transform::fromRotY(-1.5707964F)).inverse();
    EXPECT_TRUE(coupled->frame()->localPosition().isNear(expected, 1e-6F));
    EXPECT_TRUE(model.coupledActuator("Empty")->controlledJointAndRatios().empty());
    EXPECT_THAT(namesOf(model.actuators()), ElementsAre("Elbow", "Empty", "Hand"));
}

TEST(LEDActuators, ComeLastWithTheirGroupsAndColour)
{
    auto const led = [](std::string const& name, std::string const& groups, std::string const& color) {
        return sensor(name, "Elbow", "led",
                      attribute("shortname", name + "s") + attribute("groups", groups) + attribute("color", color));
    };
    Sim::Model const model(robot(arm + led("B", "X Y Y", "0 255 0") + led("A", "Y", "255 0 0") +
                                 led("C", "Z", "0 0 255") + led("D", "Z", "1 2 3 4 5 255") +
                                 sensor("E", "Base", "led") + wheel("W", "Elbow")));
    EXPECT_THAT(namesOf(model.actuators()), ElementsAre("Elbow", "W", "A", "B", "C", "D", "E"));
    EXPECT_EQ(model.ledActuators("").size(), 5U);
    EXPECT_THAT(namesOf(model.ledActuators("Y")), ElementsAre("A", "B"));
    EXPECT_THAT(namesOf(model.ledActuators("X")), ElementsAre("B"));
    EXPECT_TRUE(model.ledActuators("x").empty());
    EXPECT_EQ(model.ledActuator("A")->color(), Sim::LEDActuator::Red);
    EXPECT_EQ(model.ledActuator("B")->color(), Sim::LEDActuator::Green);
    EXPECT_EQ(model.ledActuator("C")->color(), Sim::LEDActuator::Blue);
    EXPECT_EQ(model.ledActuator("D")->color(), Sim::LEDActuator::Blue) << "index 5 is no colour";
    EXPECT_EQ(model.ledActuator("E")->color(), Sim::LEDActuator::Blue);
    EXPECT_EQ(model.ledActuator("B")->shortname(), "Bs");
    EXPECT_EQ(model.ledActuator("E")->shortname(), "");
}
