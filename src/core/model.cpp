#include "sim/model.hpp"

#include <iostream>
#include <utility>

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sim/angle_sensor.hpp"
#include "sim/angle_speed_sensor.hpp"
#include "sim/array_depth_sensor.hpp"
#include "sim/bumper_sensor.hpp"
#include "sim/camera_depth_sensor.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/coupled_sensor.hpp"
#include "sim/fsr_sensor.hpp"
#include "sim/inertial_sensor.hpp"
#include "sim/microphone_sensor.hpp"
#include "sim/single_depth_sensor.hpp"
#include "sim/sonar_sensor.hpp"
#include "sim/tactile_sensor.hpp"
#include "sim/torque_sensor.hpp"
#include "sim/wheel_velocity_sensor.hpp"

namespace Sim {

namespace {

constexpr char modelErrorMsg[] = "Could not query Model as it seems not correctly constructed.";

}  // namespace

Model::Model(std::string const& pathOrXml) : _impl(new ModelImpl(pathOrXml)) {}

Model::Model(Varo::Model::ModelUtils::Reading&& reading) : _impl(new ModelImpl(std::move(reading))) {}

Model::Model(Model&& other) noexcept : _impl(std::exchange(other._impl, nullptr)) {}

Model& Model::operator=(Model&& other) noexcept
{
    if (this != &other) {
        delete std::exchange(_impl, std::exchange(other._impl, nullptr));
    }
    return *this;
}

Model::~Model()
{
    delete _impl;
}

std::string const& Model::name() const
{
    return implOf(_impl, modelErrorMsg).name();
}

std::string Model::prettyName(int index) const
{
    return implOf(_impl, modelErrorMsg).prettyName(index);
}

std::string const& Model::configFile() const
{
    return implOf(_impl, modelErrorMsg).configFile();
}

Varo::Model::Robot const& Model::robot() const
{
    return implOf(_impl, modelErrorMsg).robot();
}

Varo::Model::Findings Model::findings() const
{
    return implOf(_impl, modelErrorMsg).findings();
}

Varo::Model::Place Model::place(Link const& link) const
{
    return implOf(_impl, modelErrorMsg).place(link);
}

Varo::Model::Place Model::place(Joint const& joint) const
{
    return implOf(_impl, modelErrorMsg).place(joint);
}

Varo::Model::Place Model::place(Actuator const& actuator) const
{
    return implOf(_impl, modelErrorMsg).place(actuator);
}

Varo::Model::Place Model::place(Sensor const& sensor) const
{
    return implOf(_impl, modelErrorMsg).place(sensor);
}

Joint const* Model::joint(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).joint(name).get();
}

std::vector<Joint const*> Model::joints() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).joints());
}

Link const* Model::link(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).link(name).get();
}

std::vector<Link const*> Model::links() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).links());
}

Link const* Model::rootLink() const
{
    return implOf(_impl, modelErrorMsg).rootLink().get();
}

JointSymmetry const* Model::jointSymmetry(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).jointSymmetry(name).get();
}

std::vector<JointSymmetry const*> Model::jointSymmetries() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).jointSymmetries());
}

JointGroup const* Model::jointGroup(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).jointGroup(name).get();
}

std::vector<JointGroup const*> Model::jointGroups() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).jointGroups());
}

std::vector<JointGroup const*> Model::jointGroupsOfJoint(std::string const& name) const
{
    return rawPointers(implOf(_impl, modelErrorMsg).jointGroupsOfJoint(name));
}

ActuatorGroup const* Model::actuatorGroup(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuatorGroup(name).get();
}

std::vector<ActuatorGroup const*> Model::actuatorGroups() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuatorGroups());
}

std::vector<ActuatorGroup const*> Model::actuatorGroupsOfJoint(std::string const& name) const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuatorGroupsOfJoint(name));
}

Actuator const* Model::actuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator(name).get();
}

std::vector<Actuator const*> Model::actuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators());
}

AngleActuator const* Model::angleActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<AngleActuator>(name).get();
}

std::vector<AngleActuator const*> Model::angleActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<AngleActuator>());
}

AngleSpeedActuator const* Model::angleSpeedActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<AngleSpeedActuator>(name).get();
}

std::vector<AngleSpeedActuator const*> Model::angleSpeedActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<AngleSpeedActuator>());
}

CoupledActuator const* Model::coupledActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<CoupledActuator>(name).get();
}

std::vector<CoupledActuator const*> Model::coupledActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<CoupledActuator>());
}

TorqueActuator const* Model::torqueActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<TorqueActuator>(name).get();
}

std::vector<TorqueActuator const*> Model::torqueActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<TorqueActuator>());
}

WheelTorqueActuator const* Model::wheelTorqueActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<WheelTorqueActuator>(name).get();
}

std::vector<WheelTorqueActuator const*> Model::wheelTorqueActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<WheelTorqueActuator>());
}

WheelVelocityActuator const* Model::wheelVelocityActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<WheelVelocityActuator>(name).get();
}

std::vector<WheelVelocityActuator const*> Model::wheelVelocityActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<WheelVelocityActuator>());
}

LEDActuator const* Model::ledActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<LEDActuator>(name).get();
}

std::vector<LEDActuator const*> Model::ledActuators(std::string const& group) const
{
    return rawPointers(implOf(_impl, modelErrorMsg).ledActuators(group));
}

Sensor const* Model::sensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor(name).get();
}

std::vector<Sensor const*> Model::sensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors());
}

AngleSensor const* Model::angleSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<AngleSensor>(name).get();
}

std::vector<AngleSensor const*> Model::angleSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<AngleSensor>());
}

AngleSpeedSensor const* Model::angleSpeedSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<AngleSpeedSensor>(name).get();
}

std::vector<AngleSpeedSensor const*> Model::angleSpeedSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<AngleSpeedSensor>());
}

ArrayDepthSensor const* Model::arrayDepthSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<ArrayDepthSensor>(name).get();
}

std::vector<ArrayDepthSensor const*> Model::arrayDepthSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<ArrayDepthSensor>());
}

BumperSensor const* Model::bumperSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<BumperSensor>(name).get();
}

std::vector<BumperSensor const*> Model::bumperSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<BumperSensor>());
}

CameraSensor const* Model::cameraSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<CameraSensor>(name).get();
}

std::vector<CameraSensor const*> Model::cameraSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<CameraSensor>());
}

CameraDepthSensor const* Model::cameraDepthSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<CameraDepthSensor>(name).get();
}

std::vector<CameraDepthSensor const*> Model::cameraDepthSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<CameraDepthSensor>());
}

CoupledSensor const* Model::coupledSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<CoupledSensor>(name).get();
}

std::vector<CoupledSensor const*> Model::coupledSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<CoupledSensor>());
}

FSRSensor const* Model::fsrSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<FSRSensor>(name).get();
}

std::vector<FSRSensor const*> Model::fsrSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<FSRSensor>());
}

InertialSensor const* Model::inertialSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<InertialSensor>(name).get();
}

std::vector<InertialSensor const*> Model::inertialSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<InertialSensor>());
}

MicrophoneSensor const* Model::microphoneSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<MicrophoneSensor>(name).get();
}

std::vector<MicrophoneSensor const*> Model::microphoneSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<MicrophoneSensor>());
}

SingleDepthSensor const* Model::singleDepthSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<SingleDepthSensor>(name).get();
}

std::vector<SingleDepthSensor const*> Model::singleDepthSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<SingleDepthSensor>());
}

SonarSensor const* Model::sonarSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<SonarSensor>(name).get();
}

std::vector<SonarSensor const*> Model::sonarSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<SonarSensor>());
}

TactileSensor const* Model::tactileSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<TactileSensor>(name).get();
}

std::vector<TactileSensor const*> Model::tactileSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<TactileSensor>());
}

TorqueSensor const* Model::torqueSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<TorqueSensor>(name).get();
}

std::vector<TorqueSensor const*> Model::torqueSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<TorqueSensor>());
}

WheelVelocitySensor const* Model::wheelVelocitySensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<WheelVelocitySensor>(name).get();
}

std::vector<WheelVelocitySensor const*> Model::wheelVelocitySensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<WheelVelocitySensor>());
}

SingleDepthSensor const* Model::depthInfraredSensor(std::string const& name) const
{
    std::cout << "depthInfraredSensor is deprecated, use singleDepthSensor "
              << "instead." << std::endl;
    return singleDepthSensor(name);
}

std::vector<SingleDepthSensor const*> Model::depthInfraredSensors() const
{
    std::cout << "depthInfraredSensors is deprecated, use singleDepthSensors "
              << "instead." << std::endl;
    return singleDepthSensors();
}

}  // namespace Sim
