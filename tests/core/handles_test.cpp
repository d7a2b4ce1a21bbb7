#include <functional>

#include <gtest/gtest.h>

#include "sim/model.hpp"
#include "throws.hpp"

namespace {

using namespace Sim;

std::string correctly(std::string const& word)
{
    return "Could not query " + word + " as it seems not correctly constructed.";
}

/// A handle without implementation throws the message from each of the getters.
template <class T, class... Getters>
void expectMessage(std::string const& message, Getters... getters)
{
    T const handle;
    for (std::string const& thrown : {Tests::messageOf<std::runtime_error>([&] { std::invoke(getters, handle); })...}) {
        EXPECT_EQ(thrown, message);
    }
}

template <class T>
void expectMotorMessage(std::string const& word)
{
    expectMessage<T>(correctly(word), &T::bufferSize, &T::startValue, &T::minValue, &T::maxValue,
                     &T::reflectedSymmetric, &T::reflectedSymmetricReversed);
}

/// The message of every kind of sensors names its class, in which one kind is irregular.
template <class T>
void expectMessageNaming(SensorKind<T> const& kind)
{
    if (kind.type != Sensor::Microphone) {
        expectMessage<T>(correctly(kind.name + std::string("Sensor")), &T::bufferSize);
    }
}

TEST(Handles, OfTheBodyWithoutImplementationThrowTheMessageOfTheirClass)
{
    expectMessage<Frame>(correctly("Frame"), &Frame::name, &Frame::parentFrame, &Frame::localPosition, &Frame::position,
                         [](Frame const& frame) { Frame::globalPosition(&frame); });
    expectMessage<Link>(correctly("Link"), &Link::frame, &Link::name, &Link::descriptionName, &Link::parentJoint,
                        &Link::mass, &Link::frictionMaterial, &Link::type, &Link::visual, &Link::visuals,
                        &Link::collisions, &Link::childrenJoints);
    expectMessage<Joint>("Could not query Joint as it seems not correctly constructed", &Joint::frame, &Joint::name,
                         &Joint::parentLink, &Joint::childLink, &Joint::type, &Joint::moves, &Joint::hasMotor,
                         &Joint::limits, &Joint::effort, &Joint::velocity, &Joint::damping, &Joint::friction,
                         &Joint::mimic, &Joint::safety, &Joint::calibration);
    expectMessage<MassData>("Could not query MassData as it seems not properly constructed", &MassData::mass,
                            &MassData::CoM, &MassData::inertiaMatrix);
    expectMessage<VisualData>("Could not query VisualData as it seems not properly constructed", &VisualData::meshPath,
                              &VisualData::meshTransform);
    expectMessage<JointSymmetry>(correctly("JointSymmetry"), &JointSymmetry::symmetricJoints,
                                 &JointSymmetry::symmetryType,
                                 [](JointSymmetry const& symmetry) { symmetry.symmetricJoint(nullptr); });
    expectMessage<JointGroup>("Could not query JointGroup as it seems not correctly initialized.", &JointGroup::name,
                              &JointGroup::joints);
    expectMessage<ActuatorGroup>("Could not query ActuatorGroup as it seems not correctly initialized.",
                                 &ActuatorGroup::name, &ActuatorGroup::parent, &ActuatorGroup::actuators);
}

TEST(Handles, OfSensorsWithoutImplementationThrowTheMessageOfTheirClass)
{
    expectMessage<AngleSensor>(correctly("Sensor"), &AngleSensor::name, &AngleSensor::frame, &AngleSensor::type);
    expectMessage<AngleSensor>(correctly("DCMSensor"), &AngleSensor::dcmKeys, &AngleSensor::dcmStateKeys,
                               &AngleSensor::dcmCommandKeys, &AngleSensor::fullDcmKeys);
    expectMessage<ArrayDepthSensor>(correctly("ArrayDepthSensor"), &ArrayDepthSensor::width, &ArrayDepthSensor::height);
    expectMessage<CameraSensor>(correctly("CameraSensor"), &CameraSensor::width, &CameraSensor::height);
    expectMessage<CameraDepthSensor>(correctly("CameraDepthSensor"), &CameraDepthSensor::width,
                                     &CameraDepthSensor::height);
    expectMessage<MicrophoneSensor>(correctly("microphoneSensor"), &MicrophoneSensor::bufferSize);
    std::apply([](auto const&... kind) { (expectMessageNaming(kind), ...); }, sensorKinds);
}

TEST(Handles, OfActuatorsWithoutImplementationThrowTheMessageOfTheirClass)
{
    expectMessage<LEDActuator>(correctly("Actuator"), &LEDActuator::name, &LEDActuator::frame, &LEDActuator::type);
    expectMessage<LEDActuator>(correctly("DCMActuator"), &LEDActuator::dcmKeys);
    expectMessage<LEDActuator>("Could not query LEDActuator as it seems  not correctly constructed.",
                               &LEDActuator::bufferSize, &LEDActuator::shortname, &LEDActuator::groups,
                               &LEDActuator::color);
    expectMotorMessage<AngleActuator>("AngleActuator");
    expectMessage<AngleActuator>(correctly("AngleActuator"), &AngleActuator::maxSpeed, &AngleActuator::controlledJoint,
                                 &AngleActuator::reflectionForced);
    expectMotorMessage<AngleSpeedActuator>("AngleSpeedActuator");
    expectMessage<AngleSpeedActuator>(correctly("AngleSpeedActuator"), &AngleSpeedActuator::controlledJoint);
    expectMotorMessage<TorqueActuator>("TorqueActuator");
    expectMessage<TorqueActuator>(correctly("TorqueActuator"), &TorqueActuator::controlledJoint);
    expectMotorMessage<CoupledActuator>("CoupledActuator");
    expectMessage<CoupledActuator>(correctly("CoupledActuator"), &CoupledActuator::maxSpeed,
                                   &CoupledActuator::reflectionForced, &CoupledActuator::controlledJointAndRatios);
    expectMessage<WheelTorqueActuator>(correctly("WheelTorqueActuator"), &WheelTorqueActuator::bufferSize,
                                       &WheelTorqueActuator::maxTorque, &WheelTorqueActuator::controlledJoint);
    expectMessage<WheelVelocityActuator>(correctly("WheelVelocityActuator"), &WheelVelocityActuator::bufferSize,
                                         &WheelVelocityActuator::maxVelocity, &WheelVelocityActuator::controlledJoint);
}

}  // namespace
