#include "actuators/wheel_torque_actuator_impl.hpp"
#include "actuators/wheel_velocity_actuator_impl.hpp"
#include "core/link_impl.hpp"
#include "core/model_impl.hpp"
#include "varo/model/model_utils.hpp"

namespace Sim {

void ModelImpl::fetchWheelActuators()
{
    for (std::string const& wheel : _motionModel->wheelNames()) {
        fetchWheelActuator(wheel);
    }
}

void ModelImpl::fetchWheelActuator(std::string const& name)
{
    float maxTorque = 0.0F;  // has to be there, and that is all
    require(_motionModel->maxTorqueFromWheel(name, maxTorque), Subject::wheel, name,
            "Could not get max wheel torque for wheel ", name);
    float maxVelocity = 0.0F;
    require(_motionModel->maxVelocityFromWheel(name, maxVelocity), Subject::wheel, name,
            "Could not get max wheel velocity for wheel ", name);

    auto const link = _index->links.find(name + "Link");
    require(link != nullptr, Subject::wheel, name, "Could not find the link of wheel ", name);
    Joint const* const parentJoint = link->parentJoint();
    require(parentJoint != nullptr, Subject::wheel, name, "Could not find the joint of wheel ", name);
    DeviceKeys const keys(Varo::Model::ModelUtils::getWheelDCMKeys, 128);
    addWheelVelocityActuator(link->_impl->frame(), name, keys, maxVelocity, _index->joints.find(parentJoint->name()));
}

boost::shared_ptr<WheelTorqueActuator> ModelImpl::addWheelTorqueActuator(FramePtr const& frame, SharedName const& name,
                                                                         DeviceKeys dcmKeys, float maxTorque,
                                                                         boost::shared_ptr<Joint const> const& joint)
{
    return addActuator<WheelTorqueActuatorImpl>(frame, name, std::move(dcmKeys), maxTorque, joint);
}

boost::shared_ptr<WheelVelocityActuator> ModelImpl::addWheelVelocityActuator(
    FramePtr const& frame, SharedName const& name, DeviceKeys dcmKeys, float maxVelocity,
    boost::shared_ptr<Joint const> const& joint)
{
    return addActuator<WheelVelocityActuatorImpl>(frame, name, std::move(dcmKeys), maxVelocity, joint);
}

}  // namespace Sim
