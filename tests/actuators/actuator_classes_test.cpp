#include <functional>
#include <memory>
#include <tuple>

#include <boost/make_shared.hpp>
#include <gmock/gmock.h>

#include "actuators/coupled_actuator_impl.hpp"
#include "actuators/wheel_torque_actuator_impl.hpp"
#include "descriptions.hpp"
#include "sim/model.hpp"

namespace {

using namespace Sim;
using namespace Tests;
using testing::ElementsAre;

/// A copy of the actuator, of which the getters say the same.
template <class T, class... Getters>
T copyOf(T const* original, Getters... getters)
{
    T copy(*original);
    auto const all = [&](T const& each) {
        return std::tuple(each.type(), each.name(), each.frame(), each.bufferSize(), each.dcmKeys(),
                          std::invoke(getters, each)...);
    };
    EXPECT_EQ(all(copy), all(*original));
    return copy;
}

/// Of the kinds that drive joints between limits.
template <class T, class... Getters>
T copyOfMotor(T const* original, Getters... getters)
{
    EXPECT_NE(original->reflectedSymmetric(), nullptr);
    return copyOf(original, &T::startValue, &T::minValue, &T::maxValue, &T::reflectedSymmetric,
                  &T::reflectedSymmetricReversed, getters...);
}

}  // namespace

TEST(ActuatorClasses, HaveCopiesThatSayTheSameAndOutliveTheModel)
{
    std::string const hand = "<group>" + subJoint("Finger") + "</group>";
    auto model = std::make_unique<Model const>(
        robot(joint("L", mirror("R", true), "reflectionForced=\"true\"") + joint("R", mirror("L", true)) +
                  chain("C", "Base", {"L", "R"}) + actuator("LHand", "L", mirror("RHand", true) + hand) +
                  actuator("RHand", "R", "") + wheel("W", "L") +
                  sensor("Led", "L", "led", attribute("shortname", "l") + attribute("groups", "G")),
              "Helvo"));
    using A = AngleActuator;
    A const angle = copyOfMotor(model->angleActuator("L"), &A::maxSpeed, &A::controlledJoint, &A::reflectionForced);
    copyOfMotor(model->torqueActuator("L"), &TorqueActuator::controlledJoint);
    copyOfMotor(model->angleSpeedActuator("L"), &AngleSpeedActuator::controlledJoint);
    using C = CoupledActuator;
    C const coupled =
        copyOfMotor(model->coupledActuator("LHand"), &C::maxSpeed, &C::reflectionForced, &C::controlledJointAndRatios);
    using W = WheelVelocityActuator;
    copyOf(model->wheelVelocityActuator("W"), &W::maxVelocity, &W::controlledJoint);
    auto const led =
        copyOf(model->ledActuators("G").front(), &LEDActuator::shortname, &LEDActuator::groups, &LEDActuator::color);
    WheelTorqueActuator const torque(new WheelTorqueActuatorImpl({}, "T", {"key"}, 5, {}));
    EXPECT_EQ(copyOf(&torque, &WheelTorqueActuator::maxTorque, &WheelTorqueActuator::controlledJoint).type(), 4);

    model.reset();
    EXPECT_EQ(angle.name(), "L");
    EXPECT_EQ(angle.maxValue(), 1.5F);
    EXPECT_TRUE(angle.reflectionForced() && angle.reflectedSymmetricReversed());
    EXPECT_TRUE(angle.frame() == nullptr && angle.controlledJoint() == nullptr);
    EXPECT_EQ(angle.reflectedSymmetric(), nullptr);
    EXPECT_THAT(coupled.controlledJointAndRatios(), testing::IsEmpty());
    EXPECT_THAT(led.groups(), ElementsAre("G"));
    EXPECT_THROW(static_cast<void>(AngleActuator(AngleActuator()).name()), std::runtime_error);
}

TEST(ActuatorClasses, LeaveOutDrivenJointsThatDoNotExist)
{
    auto const joint = boost::make_shared<Joint>();
    auto other = boost::make_shared<Joint>();
    CoupledActuator const actuator(
        new CoupledActuatorImpl({}, "A", {}, 0, 0, 0, 0, {{other, 1.0F}, {{}, 7.0F}, {joint, -1.0F}}, false));
    EXPECT_THAT(actuator.controlledJointAndRatios(),
                ElementsAre(std::pair(other.get(), 1.0F), std::pair(joint.get(), -1.0F)));
    other.reset();
    EXPECT_THAT(actuator.controlledJointAndRatios(), ElementsAre(std::pair(joint.get(), -1.0F)));
}
