#include <memory>

#include <boost/make_shared.hpp>
#include <gmock/gmock.h>

#include "actuators/angle_actuator_impl.hpp"
#include "actuators/coupled_actuator_impl.hpp"
#include "actuators/joint_actuator_impl.hpp"
#include "actuators/led_actuator_impl.hpp"
#include "actuators/wheel_torque_actuator_impl.hpp"
#include "actuators/wheel_velocity_actuator_impl.hpp"

namespace {

using namespace Sim;
using testing::ElementsAre;
using Keys = std::vector<std::string>;

Keys const keys = {"key"};
boost::shared_ptr<Frame const> const noFrame;
boost::shared_ptr<Joint> const joint = boost::make_shared<Joint>();
boost::shared_ptr<Joint> const noJoint;

/// A copy of a copy, made before the actuators that it comes from are gone.
template <class T, class Impl>
T copyOf(Impl* impl)
{
    T const source(impl);
    return T(source);
}

void expectBasics(DCMActuator const& actuator, int type)
{
    EXPECT_EQ(actuator.type(), type);
    EXPECT_EQ(actuator.bufferSize(), 4);
    EXPECT_EQ(actuator.name(), "A");
    EXPECT_EQ(actuator.frame(), nullptr);
    EXPECT_EQ(actuator.dcmKeys(), keys);
}

template <class T>
void expectRange(T const& actuator)
{
    EXPECT_EQ(actuator.startValue(), 1.0F);
    EXPECT_EQ(actuator.minValue(), 2.0F);
    EXPECT_EQ(actuator.maxValue(), 3.0F);
}

/// Of a kind that drives a joint between limits; it has a partner that mirrors it reversed.
template <class T, class Impl>
T expectMirroredMotor(int type, Impl* impl)
{
    auto const partner = boost::make_shared<T>();
    impl->setReflectedSymmetric(partner);
    impl->setReflectedSymmetricReversed(true);
    T const copy = copyOf<T>(impl);
    expectBasics(copy, type);
    expectRange(copy);
    EXPECT_EQ(copy.reflectedSymmetric(), partner.get());
    EXPECT_TRUE(copy.reflectedSymmetricReversed());
    return copy;
}

}  // namespace

TEST(ActuatorClasses, KeepWhatTheyAreMadeOfAndCopyItDeeply)
{
    auto const angle =
        expectMirroredMotor<AngleActuator>(0, new AngleActuatorImpl(noFrame, "A", keys, 1, 2, 3, 4, joint, true));
    EXPECT_EQ(angle.maxSpeed(), 4.0F);
    EXPECT_EQ(angle.controlledJoint(), joint.get());
    EXPECT_TRUE(angle.reflectionForced());
    auto const coupled = expectMirroredMotor<CoupledActuator>(
        1, new CoupledActuatorImpl(noFrame, "A", keys, 1, 2, 3, 4, {{joint, 5.0F}}, true));
    EXPECT_EQ(coupled.maxSpeed(), 4.0F);
    EXPECT_TRUE(coupled.reflectionForced());
    EXPECT_THAT(coupled.controlledJointAndRatios(), ElementsAre(std::pair(joint.get(), 5.0F)));
    auto const torque =
        expectMirroredMotor<TorqueActuator>(2, new TorqueActuatorImpl(noFrame, "A", keys, 1, 2, 3, joint));
    EXPECT_EQ(torque.controlledJoint(), joint.get());
    auto const speed =
        expectMirroredMotor<AngleSpeedActuator>(3, new AngleSpeedActuatorImpl(noFrame, "A", keys, 1, 2, 3, joint));
    EXPECT_EQ(speed.controlledJoint(), joint.get());

    auto const wheelTorque = copyOf<WheelTorqueActuator>(new WheelTorqueActuatorImpl(noFrame, "A", keys, 5, joint));
    expectBasics(wheelTorque, 4);
    EXPECT_EQ(wheelTorque.maxTorque(), 5.0F);
    EXPECT_EQ(wheelTorque.controlledJoint(), joint.get());
    auto const wheel = copyOf<WheelVelocityActuator>(new WheelVelocityActuatorImpl(noFrame, "A", keys, 5, noJoint));
    expectBasics(wheel, 5);
    EXPECT_EQ(wheel.maxVelocity(), 5.0F);
    EXPECT_EQ(wheel.controlledJoint(), nullptr);
    auto const led = copyOf<LEDActuator>(new LEDActuatorImpl(noFrame, "A", keys, "short", {"g"}, LEDActuator::Green));
    expectBasics(led, 6);
    EXPECT_EQ(led.shortname(), "short");
    EXPECT_EQ(led.groups(), Keys{"g"});
    EXPECT_EQ(led.color(), LEDActuator::Green);
    EXPECT_THROW(static_cast<void>(AngleActuator(AngleActuator()).name()), std::runtime_error);
}

TEST(ActuatorClasses, LeaveOutDrivenJointsThatDoNotExist)
{
    auto other = boost::make_shared<Joint>();
    CoupledActuator const actuator(new CoupledActuatorImpl(noFrame, "A", keys, 0, 0, 0, 0,
                                                           {{other, 1.0F}, {noJoint, 7.0F}, {joint, -1.0F}}, false));
    EXPECT_THAT(actuator.controlledJointAndRatios(),
                ElementsAre(std::pair(other.get(), 1.0F), std::pair(joint.get(), -1.0F)));
    other.reset();
    EXPECT_THAT(actuator.controlledJointAndRatios(), ElementsAre(std::pair(joint.get(), -1.0F)));
}
