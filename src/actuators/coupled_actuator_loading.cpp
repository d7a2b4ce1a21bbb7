#include <list>

#include "core/joint_impl.hpp"
#include "core/model_impl.hpp"
#include "varo/model/model_utils.hpp"

namespace Sim {

using Varo::Math::Transform;

void ModelImpl::fetchCoupledActuators()
{
    std::vector<std::string const*> actuators;
    for (std::uint32_t const chain : _motionModel->records().chainOrder) {
        _motionModel->appendCoupledActuators(_motionModel->records().chains[chain].jointNames, actuators);
    }
    for (std::string const* actuator : actuators) {
        fetchCoupledActuator(*actuator);
    }
}

void ModelImpl::fetchCoupledActuator(std::string const& name)
{
    float startValue = 0.0F;
    float minValue = 0.0F;
    float maxValue = 0.0F;
    float maxSpeed = 0.0F;
    fetchBasicActuatorInfo(Subject::actuator, name, startValue, minValue, maxValue, maxSpeed);
    auto const jointsAndRatios = jointsAndRatiosOf(name);

    Transform transform;
    _motionModel->transformFromActuator(name, transform);
    std::string parentName;
    _motionModel->parentJointFromActuator(name, parentName);
    bool reflectionForced = false;
    _motionModel->reflectionForcedFromJointName(name, reflectionForced);
    auto const parentJoint = _index->joints.find(parentName);
    require(parentJoint != nullptr, Subject::actuator, name, "Could not find the parent joint of actuator ", name);
    SharedName const sharedName(name);
    FramePtr const frame = addFrame(sharedName, transform.inverse(), parentJoint->_impl->frame());

    addCoupledActuator(frame, sharedName, DeviceKeys(Varo::Model::ModelUtils::getActuatorDCMKeys, 64), startValue,
                       minValue, maxValue, maxSpeed, jointsAndRatios, reflectionForced);
}

CoupledActuatorImpl::JointsAndRatios ModelImpl::jointsAndRatiosOf(std::string const& actuator) const
{
    std::list<std::string> jointNames;
    require(_motionModel->jointsFromActuator(actuator, jointNames), Subject::actuator, actuator,
            "MotionModel: Problem getting joints of coupled actuator.");
    CoupledActuatorImpl::JointsAndRatios result;
    for (std::string const& joint : jointNames) {
        float ratio = 0.0F;
        require(_motionModel->ratioFromJoint(joint, ratio), Subject::actuator, actuator,
                "MotionModel: Problem getting ratios of joints attached to coupled actuators.");
        result.emplace_back(_index->joints.find(joint), ratio);
    }
    return result;
}

boost::shared_ptr<CoupledActuator> ModelImpl::addCoupledActuator(FramePtr const& frame, SharedName const& name,
                                                                 DeviceKeys dcmKeys, float startValue, float minValue,
                                                                 float maxValue, float maxSpeed,
                                                                 CoupledActuatorImpl::JointsAndRatios jointsAndRatios,
                                                                 bool reflectionForced)
{
    return addActuator<CoupledActuatorImpl>(frame, name, std::move(dcmKeys), startValue, minValue, maxValue, maxSpeed,
                                            std::move(jointsAndRatios), reflectionForced);
}

}  // namespace Sim
