#include <string>
#include <vector>

#include "actuators/angle_actuator_impl.hpp"
#include "actuators/joint_actuator_impl.hpp"
#include "core/frame_impl.hpp"
#include "core/joint_impl.hpp"
#include "core/link_impl.hpp"
#include "core/model_impl.hpp"
#include "varo/model/model_utils.hpp"

namespace Sim {

using Varo::Math::Transform;
using Varo::Model::ModelUtils::getJointDCMKeys;

bool ModelImpl::fetchBasicActuatorInfo(Subject subject, std::string const& name, float& startValue, float& minValue,
                                       float& maxValue, float& maxSpeed)
{
    require(_motionModel->startAngle(name, startValue), subject, name, "Could not get start value.");
    require(_motionModel->readLimits(name, minValue, maxValue, maxSpeed), subject, name, "Could not get min value.");
    return true;
}

void ModelImpl::fetchAngleActuators()
{
    bool const withTorqueAndSpeed =
        name().find("SpecialSimulation") != std::string::npos || name().find("Helvo") != std::string::npos;
    std::vector<std::string const*> actuators;
    actuators.reserve(_joints.size());
    for (std::uint32_t const chain : _motionModel->records().chainOrder) {
        _motionModel->appendAngleActuators(_motionModel->records().chains[chain].jointNames, actuators);
    }
    for (std::string const* actuator : actuators) {
        fetchAngleActuator(*actuator, withTorqueAndSpeed);
    }
}

void ModelImpl::fetchAngleActuator(std::string const& name, bool withTorqueAndSpeed)
{
    auto const& joint = _index->joints.find(name);
    boost::shared_ptr<Link> link;
    Transform end;
    // What the joint at hand knows need not be looked for by its name.
    if (auto const* const record = joint == nullptr ? nullptr : joint->_impl->source().joint) {
        link = joint->_impl->childLink();
        end = record->endTransform;
    } else {
        _motionModel->endTransformFromJointName(name, end);
    }
    link = link == nullptr ? _index->linkCalledAfter(name) : link;
    require(link != nullptr, Subject::joint, name, "Could not find the link of joint ", name);
    SharedName const sharedName = SharedName::of(name);
    FramePtr const frame = addFrame(sharedName, end.inverse(), link->_impl->frame());

    float startValue = 0.0F;
    float minValue = 0.0F;
    float maxValue = 0.0F;
    float maxSpeed = 0.0F;
    fetchBasicActuatorInfo(Subject::joint, name, startValue, minValue, maxValue, maxSpeed);
    bool reflectionForced = false;
    _motionModel->reflectionForcedFromJointName(name, reflectionForced);

    addAngleActuator(frame, sharedName, DeviceKeys(getJointDCMKeys, 64), startValue, minValue, maxValue, maxSpeed,
                     joint, reflectionForced);
    if (withTorqueAndSpeed) {
        addTorqueActuator(frame, sharedName, DeviceKeys(getJointDCMKeys, 256), 0.0F, -100.0F, 100.0F, joint);
        addAngleSpeedActuator(frame, sharedName, DeviceKeys(getJointDCMKeys, 128), 0.0F, -10.0F, 10.0F, joint);
    }
}

boost::shared_ptr<AngleActuator> ModelImpl::addAngleActuator(FramePtr const& frame, SharedName const& name,
                                                             DeviceKeys dcmKeys, float startValue, float minValue,
                                                             float maxValue, float maxSpeed,
                                                             boost::shared_ptr<Joint const> const& joint,
                                                             bool reflectionForced)
{
    return addActuator<AngleActuatorImpl>(frame, name, std::move(dcmKeys), startValue, minValue, maxValue, maxSpeed,
                                          joint, reflectionForced);
}

boost::shared_ptr<TorqueActuator> ModelImpl::addTorqueActuator(FramePtr const& frame, SharedName const& name,
                                                               DeviceKeys dcmKeys, float startValue, float minValue,
                                                               float maxValue,
                                                               boost::shared_ptr<Joint const> const& joint)
{
    return addActuator<TorqueActuatorImpl>(frame, name, std::move(dcmKeys), startValue, minValue, maxValue, joint);
}

boost::shared_ptr<AngleSpeedActuator> ModelImpl::addAngleSpeedActuator(FramePtr const& frame, SharedName const& name,
                                                                       DeviceKeys dcmKeys, float startValue,
                                                                       float minValue, float maxValue,
                                                                       boost::shared_ptr<Joint const> const& joint)
{
    return addActuator<AngleSpeedActuatorImpl>(frame, name, std::move(dcmKeys), startValue, minValue, maxValue, joint);
}

}  // namespace Sim
