#include "core/joint_impl.hpp"
#include "core/link_impl.hpp"
#include "core/model_impl.hpp"

namespace Sim {

using Varo::Math::Transform;

void ModelImpl::fetchWheels()
{
    for (std::string const& name : _motionModel->wheelNames()) {
        fetchWheel(name);
    }
}

void ModelImpl::fetchWheel(std::string const& name)
{
    auto const parentLink = parentLinkOfWheel(name);
    Transform inParentLink;
    require(_motionModel->transformFromWheel(name, inParentLink), Subject::wheel, name,
            "Could not fetch wheel transform for wheel ", name);
    auto const joint =
        attachJoint(name, inParentLink, parentLink, {nullptr, _motionModel->records().wheels.find(name)});

    auto const mass = requiredMassOf(Subject::wheel, name);
    std::string material;
    require(_motionModel->frictionMaterial(name, material), Subject::wheel, name,
            "Could not fetch wheel friction material for wheel ", name);
    auto const visual = visualOf(name);
    Transform end;
    _motionModel->endTransformFromJointName(name, end);
    SharedName const linkName = linkNameOf(name);
    FramePtr const linkFrame = addFrame(linkName, end, joint->_impl->frame());
    auto const link = addWheel(linkFrame, linkName, joint, mass, material, visual);
    link->_impl->setBody(_motionModel->records().wheels.find(name));
    joint->_impl->setChildLink(link);
}

boost::shared_ptr<Link> ModelImpl::parentLinkOfWheel(std::string const& wheel) const
{
    static constexpr char inconsistent[] = "Model consistency error for wheel ";
    std::string parentName;
    require(_motionModel->parentJointFromWheel(wheel, parentName), Subject::wheel, wheel,
            "Could not fetch wheel parent joint for wheel ", wheel);
    auto const parentJoint = _index->joints.find(parentName);
    require(parentJoint != nullptr, Subject::wheel, wheel, inconsistent, wheel);
    if (auto const parentLink = _index->linkCalledAfter(parentName)) {
        return parentLink;
    }
    Link const* const childLink = parentJoint->childLink();
    require(childLink != nullptr, Subject::wheel, wheel, inconsistent, wheel);
    auto const parentLink = _index->links.find(childLink->name());
    require(parentLink != nullptr, Subject::wheel, wheel, inconsistent, wheel);
    return parentLink;
}

}  // namespace Sim
