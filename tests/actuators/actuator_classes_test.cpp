#include <memory>

#include <boost/make_shared.hpp>
#include <gmock/gmock.h>

#include "actuators/angle_actuator_impl.hpp"
#include "actuators/angle_speed_actuator_impl.hpp"
#include "actuators/coupled_actuator_impl.hpp"
#include "actuators/led_actuator_impl.hpp"
#include "actuators/torque_actuator_impl.hpp"
#include "actuators/wheel_torque_actuator_impl.hpp"
#include "actuators/wheel_velocity_actuator_impl.hpp"

namespace {

using namespace Sim;
using Keys = std::vector<std::string>;

Keys const keys = {"key"};
boost::shared_ptr<Frame const> const noFrame;
boost::shared_ptr<Joint const> const noJoint;

void expectKind(Actuator const& actuator, int type)
{
    EXPECT_EQ(actuator.type(), type);
    EXPECT_EQ(actuator.bufferSize(), 4);
    EXPECT_EQ(actuator.name(), "A");
    EXPECT_EQ(actuator.frame(), nullptr);
}

/// A copy answers as its source did, after the source is gone.
template <class T, class Impl, class Check>
void expectDeepCopy(Impl* impl, Check const& check)
{
    auto source = std::make_unique<T>(impl);
    T const copy(*source);
    T const copyOfCopy(copy);
    source.reset();
    EXPECT_EQ(copy.dcmKeys(), keys);
    EXPECT_EQ(copy.name(), "A");
    check(copy);
    check(copyOfCopy);
}

}  // namespace

TEST(ActuatorClasses, KnowTheirType)
{
    expectKind(AngleActuator(new AngleActuatorImpl(noFrame, "A", keys, 0, 0, 0, 0, noJoint, false)), 0);
    expectKind(CoupledActuator(new CoupledActuatorImpl(noFrame, "A", keys, 0, 0, 0, 0, {}, false)), 1);
    expectKind(TorqueActuator(new TorqueActuatorImpl(noFrame, "A", keys, 0, 0, 0, noJoint)), 2);
    expectKind(AngleSpeedActuator(new AngleSpeedActuatorImpl(noFrame, "A", keys, 0, 0, 0, noJoint)), 3);
    expectKind(WheelTorqueActuator(new WheelTorqueActuatorImpl(noFrame, "A", keys, 0, noJoint)), 4);
    expectKind(WheelVelocityActuator(new WheelVelocityActuatorImpl(noFrame, "A", keys, 0, noJoint)), 5);
    expectKind(LEDActuator(new LEDActuatorImpl(noFrame, "A", keys, "a", {}, LEDActuator::Red)), 6);
}

TEST(ActuatorClasses, CopyDeeply)
{
    auto const joint = boost::make_shared<Joint>();
    auto* const angle = new AngleActuatorImpl(noFrame, "A", keys, 1, 2, 3, 4, joint, true);
    auto const partner = boost::make_shared<AngleActuator>();
    angle->setReflectedSymmetric(partner);
    angle->setReflectedSymmetricReversed(true);
    expectDeepCopy<AngleActuator>(angle, [&](AngleActuator const& copy) {
        EXPECT_EQ(copy.startValue(), 1.0F);
        EXPECT_EQ(copy.minValue(), 2.0F);
        EXPECT_EQ(copy.maxValue(), 3.0F);
        EXPECT_EQ(copy.maxSpeed(), 4.0F);
        EXPECT_EQ(copy.controlledJoint(), joint.get());
        EXPECT_EQ(copy.reflectedSymmetric(), partner.get());
        EXPECT_TRUE(copy.reflectedSymmetricReversed());
        EXPECT_TRUE(copy.reflectionForced());
    });
    expectDeepCopy<WheelVelocityActuator>(new WheelVelocityActuatorImpl(noFrame, "A", keys, 5, joint),
                                          [&](WheelVelocityActuator const& copy) {
                                              EXPECT_EQ(copy.maxVelocity(), 5.0F);
                                              EXPECT_EQ(copy.controlledJoint(), joint.get());
                                          });
    expectDeepCopy<LEDActuator>(new LEDActuatorImpl(noFrame, "A", keys, "short", {"g"}, LEDActuator::Green),
                                [](LEDActuator const& copy) {
                                    EXPECT_EQ(copy.shortname(), "short");
                                    EXPECT_EQ(copy.groups(), Keys{"g"});
                                    EXPECT_EQ(copy.color(), LEDActuator::Green);
                                });
    AngleActuator const empty;
    EXPECT_THROW(static_cast<void>(AngleActuator(empty).name()), std::runtime_error);
}

TEST(ActuatorClasses, LeaveOutDrivenJointsThatDoNotExist)
{
    auto first = boost::make_shared<Joint>();
    auto const second = boost::make_shared<Joint>();
    CoupledActuator const actuator(new CoupledActuatorImpl(noFrame, "A", keys, 0, 0, 0, 0,
                                                           {{first, 1.0F}, {noJoint, 7.0F}, {second, -1.0F}}, false));
    using Driven = std::vector<std::pair<Joint const*, float>>;
    EXPECT_EQ(actuator.controlledJointAndRatios(), (Driven{{first.get(), 1.0F}, {second.get(), -1.0F}}));
    first.reset();
    EXPECT_EQ(actuator.controlledJointAndRatios(), (Driven{{second.get(), -1.0F}}));
}
