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

/// Elements by names; what one group was made of makes room for the next.
template <class T>
class Members {
public:
    explicit Members(FirstByName<T>& elements) : _elements(elements) {}

    template <class Names>
    std::vector<boost::shared_ptr<T>> const& named(Names const& names)
    {
        _members.clear();
        for (auto const& name : names) {
            _members.push_back(_elements.find(textOf(name)));
        }
        return _members;
    }

private:
    FirstByName<T>& _elements;
    std::vector<boost::shared_ptr<T>> _members;
};

}  // namespace

void ModelImpl::addJointGroup(SharedName const& name, std::vector<boost::shared_ptr<Joint>> const& joints)
{
    _jointGroups.push_back(makeElement<JointGroup, JointGroupImpl>(name, joints));
}

boost::shared_ptr<ActuatorGroup> ModelImpl::addActuatorGroup(SharedName const& name,
                                                             boost::shared_ptr<ActuatorGroup> const& parent,
                                                             std::vector<boost::shared_ptr<Actuator>> const& actuators)
{
    _actuatorGroups.push_back(makeElement<ActuatorGroup, ActuatorGroupImpl>(name, parent, actuators));
    return _actuatorGroups.back();
}

void ModelImpl::defineJointGroups()
{
    Members<Joint> members(_index->joints);
    Varo::Model::Records const& records = _motionModel->records();
    for (std::uint32_t const chain : records.chainOrder) {
        std::vector<std::string> const& jointNames = records.chains[chain].jointNames;
        for (std::string const& joint : jointNames) {
            std::string groupName;
            std::vector<std::string> memberNames;
            if (_motionModel->coupledJointGroupFromParentJoint(joint, groupName, memberNames)) {
                addJointGroup(groupName, members.named(memberNames));
            }
        }
        addJointGroup(SharedName::of(records.chains.nameOf(chain)), members.named(jointNames));
    }
}

void ModelImpl::defineActuatorGroups()
{
    FirstByName<Actuator> byName(_actuators);
    FirstByName<ActuatorGroup> groups(_actuatorGroups);  // made so far: a chain listed before its parent has none
    Members<Actuator> members(byName);
    std::vector<std::string const*> names;
    Varo::Model::Records const& records = _motionModel->records();
    for (std::uint32_t const number : records.chainOrder) {
        Varo::Model::ChainConfig const& chain = records.chains[number];
        std::string const& parentChain = _motionModel->firstChainOf(chain.parentJoint);
        names.clear();
        _motionModel->appendActuators(chain.jointNames, names);
        addActuatorGroup(SharedName::of(records.chains.nameOf(number)), groups.find(parentChain), members.named(names));
        groups.addLast();
    }
}

}  // namespace Sim
