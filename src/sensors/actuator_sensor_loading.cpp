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
        std::string const& name = actuator->name();
        FramePtr const frame = actuator->_impl->frame();
        if (actuator->type() == Actuator::Angle) {
            addSensor<AngleSensorImpl>(frame, name, getJointDCMKeys({name}, 1));
            if (withTorqueAndSpeed) {
                addSensor<TorqueSensorImpl>(frame, name, getJointDCMKeys({name}, 32));
                addSensor<AngleSpeedSensorImpl>(frame, name, getJointDCMKeys({name}, 2));
            }
        } else if (actuator->type() == Actuator::WheelTorque) {
            addSensor<TorqueSensorImpl>(frame, name, getWheelDCMKeys({name}, 32));
            addSensor<AngleSpeedSensorImpl>(frame, name, getWheelDCMKeys({name}, 2));
        }
    }
}

void ModelImpl::fetchCoupledSensors()
{
    for (auto const& actuator : _actuators) {
        if (actuator->type() == Actuator::Coupled) {
            std::string const& name = actuator->name();
            addSensor<CoupledSensorImpl>(actuator->_impl->frame(), name, getActuatorDCMKeys({name}, 1));
        }
    }
}

}  // namespace Sim
