#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "sim/actuator_group.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/angle_sensor.hpp"
#include "sim/angle_speed_actuator.hpp"
#include "sim/angle_speed_sensor.hpp"
#include "sim/array_depth_sensor.hpp"
#include "sim/bumper_sensor.hpp"
#include "sim/camera_depth_sensor.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/coupled_sensor.hpp"
#include "sim/frame.hpp"
#include "sim/fsr_sensor.hpp"
#include "sim/inertial_sensor.hpp"
#include "sim/joint.hpp"
#include "sim/joint_group.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/led_actuator.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/microphone_sensor.hpp"
#include "sim/single_depth_sensor.hpp"
#include "sim/sonar_sensor.hpp"
#include "sim/tactile_sensor.hpp"
#include "sim/torque_actuator.hpp"
#include "sim/torque_sensor.hpp"
#include "sim/visual_data.hpp"
#include "sim/wheel_torque_actuator.hpp"
#include "sim/wheel_velocity_actuator.hpp"
#include "sim/wheel_velocity_sensor.hpp"
#include "throws.hpp"

namespace {

struct Handle {
    std::string message;
    std::vector<std::function<void()>> getters;
};

/// One getter of a handle without implementation.
template <class T, class Result, class Owner>
std::function<void()> call(Result (Owner::*getter)() const)
{
    return [getter] {
        T const handle;
        (handle.*getter)();
    };
}

template <class T, class... Getters>
Handle handle(char const* message, Getters... getters)
{
    return {message, {call<T>(getters)...}};
}

std::string correctly(std::string const& word)
{
    return "Could not query " + word + " as it seems not correctly constructed.";
}

template <class T>
Handle sensor(std::string const& word)
{
    return {correctly(word), {call<T>(&T::bufferSize)}};
}

template <class T>
Handle picture(std::string const& word)
{
    return {correctly(word), {call<T>(&T::bufferSize), call<T>(&T::width), call<T>(&T::height)}};
}

template <class T>
Handle mirrored(std::string const& word)
{
    return {correctly(word),
            {call<T>(&T::bufferSize), call<T>(&T::startValue), call<T>(&T::minValue), call<T>(&T::maxValue),
             call<T>(&T::reflectedSymmetric), call<T>(&T::reflectedSymmetricReversed)}};
}

/// Every getter of every class, with the message of the class that declares it.
std::vector<Handle> allHandles()
{
    using namespace Sim;
    auto const symmetricJoint = [] { JointSymmetry().symmetricJoint(nullptr); };
    return {
        handle<Frame>("Could not query Frame as it seems not correctly constructed.", &Frame::name, &Frame::parentFrame,
                      &Frame::localPosition, &Frame::position),
        handle<Link>("Could not query Link as it seems not correctly constructed.", &Link::frame, &Link::name,
                     &Link::parentJoint, &Link::mass, &Link::frictionMaterial, &Link::type, &Link::visual,
                     &Link::childrenJoints),
        handle<Joint>("Could not query Joint as it seems not correctly constructed", &Joint::frame, &Joint::name,
                      &Joint::parentLink, &Joint::childLink),
        handle<MassData>("Could not query MassData as it seems not properly constructed", &MassData::mass,
                         &MassData::CoM, &MassData::inertiaMatrix),
        handle<VisualData>("Could not query VisualData as it seems not properly constructed", &VisualData::meshPath,
                           &VisualData::meshTransform),
        handle<JointSymmetry>("Could not query JointSymmetry as it seems not correctly constructed.",
                              &JointSymmetry::symmetricJoints, &JointSymmetry::symmetryType),
        {correctly("JointSymmetry"), {symmetricJoint}},
        handle<JointGroup>("Could not query JointGroup as it seems not correctly initialized.", &JointGroup::name,
                           &JointGroup::joints),
        handle<ActuatorGroup>("Could not query ActuatorGroup as it seems not correctly initialized.",
                              &ActuatorGroup::name, &ActuatorGroup::parent, &ActuatorGroup::actuators),
        handle<AngleSensor>("Could not query Sensor as it seems not correctly constructed.", &AngleSensor::name,
                            &AngleSensor::frame, &AngleSensor::type),
        handle<AngleSensor>("Could not query DCMSensor as it seems not correctly constructed.", &AngleSensor::dcmKeys,
                            &AngleSensor::dcmStateKeys, &AngleSensor::dcmCommandKeys, &AngleSensor::fullDcmKeys),
        sensor<AngleSensor>("AngleSensor"),
        sensor<AngleSpeedSensor>("AngleSpeedSensor"),
        picture<ArrayDepthSensor>("ArrayDepthSensor"),
        sensor<BumperSensor>("BumperSensor"),
        picture<CameraSensor>("CameraSensor"),
        picture<CameraDepthSensor>("CameraDepthSensor"),
        sensor<CoupledSensor>("CoupledSensor"),
        sensor<FSRSensor>("FSRSensor"),
        sensor<InertialSensor>("InertialSensor"),
        sensor<MicrophoneSensor>("microphoneSensor"),
        sensor<SingleDepthSensor>("SingleDepthSensor"),
        sensor<SonarSensor>("SonarSensor"),
        sensor<TactileSensor>("TactileSensor"),
        sensor<TorqueSensor>("TorqueSensor"),
        sensor<WheelVelocitySensor>("WheelVelocitySensor"),
        handle<LEDActuator>("Could not query Actuator as it seems not correctly constructed.", &LEDActuator::name,
                            &LEDActuator::frame, &LEDActuator::type),
        handle<LEDActuator>("Could not query DCMActuator as it seems not correctly constructed.",
                            &LEDActuator::dcmKeys),
        handle<LEDActuator>("Could not query LEDActuator as it seems  not correctly constructed.",
                            &LEDActuator::bufferSize, &LEDActuator::shortname, &LEDActuator::groups,
                            &LEDActuator::color),
        mirrored<AngleActuator>("AngleActuator"),
        handle<AngleActuator>("Could not query AngleActuator as it seems not correctly constructed.",
                              &AngleActuator::maxSpeed, &AngleActuator::controlledJoint,
                              &AngleActuator::reflectionForced),
        mirrored<AngleSpeedActuator>("AngleSpeedActuator"),
        handle<AngleSpeedActuator>("Could not query AngleSpeedActuator as it seems not correctly constructed.",
                                   &AngleSpeedActuator::controlledJoint),
        mirrored<TorqueActuator>("TorqueActuator"),
        handle<TorqueActuator>("Could not query TorqueActuator as it seems not correctly constructed.",
                               &TorqueActuator::controlledJoint),
        mirrored<CoupledActuator>("CoupledActuator"),
        handle<CoupledActuator>("Could not query CoupledActuator as it seems not correctly constructed.",
                                &CoupledActuator::maxSpeed, &CoupledActuator::reflectionForced,
                                &CoupledActuator::controlledJointAndRatios),
        handle<WheelTorqueActuator>("Could not query WheelTorqueActuator as it seems not correctly constructed.",
                                    &WheelTorqueActuator::bufferSize, &WheelTorqueActuator::maxTorque,
                                    &WheelTorqueActuator::controlledJoint),
        handle<WheelVelocityActuator>("Could not query WheelVelocityActuator as it seems not correctly constructed.",
                                      &WheelVelocityActuator::bufferSize, &WheelVelocityActuator::maxVelocity,
                                      &WheelVelocityActuator::controlledJoint),
    };
}

}  // namespace

TEST(Handles, WithoutImplementationEveryGetterThrowsItsClassMessage)
{
    for (Handle const& handle : allHandles()) {
        for (auto const& getter : handle.getters) {
            EXPECT_EQ(Tests::messageOf<std::runtime_error>(getter), handle.message);
        }
    }
}
