#include "actuators/actuator_impl.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"
#include "varo/model/model_utils.hpp"

// The sensors that nobody describes: those that come with an actuator, under its name and at its frame.
namespace Sim {

using Varo::Model::ModelUtils::getActuatorDCMKeys;
using Varo::Model::ModelUtils::getJointDCMKeys;
using Varo::Model::ModelUtils::getWheelDCMKeys;

void ModelImpl::fetchAngleSensors()
{
    bool const withTorqueAndSpeed = name().find("SpecialSimulation") != std::string::npos;
    for (auto const& actuator : _actuators) {
        SharedName const& sharedName = actuator->_impl->sharedName();
        FramePtr const frame = actuator->_impl->frame();
        if (actuator->type() == Actuator::Angle) {
            addSensor<AngleSensorImpl>(frame, sharedName, DeviceKeys(getJointDCMKeys, 1));
            if (withTorqueAndSpeed) {
                addSensor<TorqueSensorImpl>(frame, sharedName, DeviceKeys(getJointDCMKeys, 32));
                addSensor<AngleSpeedSensorImpl>(frame, sharedName, DeviceKeys(getJointDCMKeys, 2));
            }
        } else if (actuator->type() == Actuator::WheelTorque) {
            addSensor<TorqueSensorImpl>(frame, sharedName, DeviceKeys(getWheelDCMKeys, 32));
            addSensor<AngleSpeedSensorImpl>(frame, sharedName, DeviceKeys(getWheelDCMKeys, 2));
        }
    }
}

void ModelImpl::fetchCoupledSensors()
{
    for (auto const& actuator : _actuators) {
        if (actuator->type() == Actuator::Coupled) {
            SharedName const& sharedName = actuator->_impl->sharedName();
            addSensor<CoupledSensorImpl>(actuator->_impl->frame(), sharedName, DeviceKeys(getActuatorDCMKeys, 1));
        }
    }
}

}  // namespace Sim
