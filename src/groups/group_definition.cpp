#include <string>
#include <vector>

#include "core/model_impl.hpp"

namespace Sim {

namespace {

std::string const& textOf(std::string const& name)
{
    return name;
}

std::string const& textOf(std::string const* name)
{
    return *name;
}

template <class T, class Names>
std::vector<boost::shared_ptr<T>> named(Names const& names, FirstByName<T>& elements)
{
    std::vector<boost::shared_ptr<T>> result;
    result.reserve(names.size());
    for (auto const& name : names) {
        result.push_back(elements.find(textOf(name)));
    }
    return result;
}

}  // namespace

void ModelImpl::addJointGroup(std::string const& name, std::vector<boost::shared_ptr<Joint>> const& joints)
{
    _jointGroups.push_back(makeElement<JointGroup, JointGroupImpl>(name, joints));
}

boost::shared_ptr<ActuatorGroup> ModelImpl::addActuatorGroup(std::string const& name,
                                                             boost::shared_ptr<ActuatorGroup> const& parent,
                                                             std::vector<boost::shared_ptr<Actuator>> const& actuators)
{
    _actuatorGroups.push_back(makeElement<ActuatorGroup, ActuatorGroupImpl>(name, parent, actuators));
    return _actuatorGroups.back();
}

void ModelImpl::defineJointGroups()
{
    for (std::string const* chain : _motionModel->chainRefs()) {
        std::vector<std::string> const& jointNames = _motionModel->jointsOf(*chain);
        for (std::string const& joint : jointNames) {
            std::string groupName;
            std::vector<std::string> memberNames;
            if (_motionModel->coupledJointGroupFromParentJoint(joint, groupName, memberNames)) {
                addJointGroup(groupName, named(memberNames, _index->joints));
            }
        }
        addJointGroup(*chain, named(jointNames, _index->joints));
    }
}

void ModelImpl::defineActuatorGroups()
{
    FirstByName<Actuator> byName(_actuators);
    FirstByName<ActuatorGroup> groups(_actuatorGroups);  // made so far: a chain listed before its parent has none
    std::vector<std::string const*> members;
    for (std::string const* chain : _motionModel->chainRefs()) {
        std::string const parentJoint = _motionModel->parentJointFromChain(*chain);
        std::string const parentChain = _motionModel->chainNameFromJoint(parentJoint);
        members.clear();
        _motionModel->appendActuators(*chain, members);
        addActuatorGroup(*chain, groups.find(parentChain), named(members, byName));
        groups.addLast();
    }
}

}  // namespace Sim
