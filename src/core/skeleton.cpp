#include <iostream>

#include "core/frame_impl.hpp"
#include "core/joint_impl.hpp"
#include "core/link_impl.hpp"
#include "core/mass_data_impl.hpp"
#include "core/model_impl.hpp"
#include "core/visual_data_impl.hpp"

namespace Sim {

using Varo::Math::Position3D;
using Varo::Math::Transform;
using Varo::Model::JointConfig;

/// A link whose children are still being made.
struct ModelImpl::Branch {
    boost::shared_ptr<Link> link;
    std::string const& jointName;  ///< the joint's own
    Transform end;
    std::size_t firstChild;  ///< in the list of the children of all branches that are open
    std::size_t nextChild;
};

void ModelImpl::fetchSkeleton()
{
    std::string const& root = _motionModel->rootName();
    SharedName const linkName = linkNameOf(root);
    FramePtr const rootFrame = addFrame(linkName, Transform(), {});
    auto const mass = requiredMassOf(Subject::root, root);
    auto const visual = requiredVisualOf(root);
    auto const rootLink = addLink(rootFrame, linkName, {}, mass, frictionMaterialOf(root), visual);
    rootLink->_impl->setBody(&_motionModel->records().root);

    std::vector<std::string const*> joints;
    _motionModel->appendFollowingJoints(root, joints);
    for (std::string const* name : joints) {
        std::string parent;
        fillInBranch(attachJointCalled(*name, Transform(), parent, rootLink));
    }
}

/// Depth first, with a stack of its own: a robot may be deeper than the call stack is.
void ModelImpl::fillInBranch(boost::shared_ptr<Joint> const& joint)
{
    std::vector<Branch> open;
    std::vector<std::string const*> children;
    constexpr std::size_t usualDepth = 16;
    open.reserve(usualDepth);
    children.reserve(usualDepth);
    std::string parent;
    open.push_back(openBranch(joint, children));
    while (!open.empty()) {
        Branch& branch = open.back();
        if (branch.nextChild == children.size()) {
            children.resize(branch.firstChild);
            open.pop_back();
            continue;
        }
        std::string const& name = *children[branch.nextChild++];
        if (_index->joints.contains(name)) {
            continue;
        }
        parent = branch.jointName;  // sub-joints are placed relative to what they are attached to
        auto const child = attachJointCalled(name, branch.end, parent, branch.link);
        open.push_back(openBranch(child, children));
    }
}

/// Makes the link that the joint moves, and adds the joints that are attached to it to `children`: none when there is
/// such a link already.
ModelImpl::Branch ModelImpl::openBranch(boost::shared_ptr<Joint> const& joint,
                                        std::vector<std::string const*>& children)
{
    Branch branch = {{}, joint->name(), {}, children.size(), children.size()};
    if (_index->linkCalledAfter(branch.jointName) != nullptr) {
        return branch;
    }
    _motionModel->appendFollowingJoints(branch.jointName, children);

    // A second frame of the joint's name, unconnected: look-ups find the joint's own, which precedes it.
    addFrame(joint->_impl->sharedName(), Transform(), {});
    auto const* const record = joint->_impl->source().joint;
    if (record != nullptr) {
        branch.end = record->endTransform;
    } else {
        _motionModel->endTransformFromJointName(branch.jointName, branch.end);
    }
    SharedName const linkName = linkNameOf(branch.jointName);
    FramePtr const linkFrame = addFrame(linkName, branch.end, joint->_impl->frame());
    auto const mass = record == nullptr ? massOf(branch.jointName) : massOf(*record);
    auto const visual =
        record == nullptr ? visualOf(branch.jointName) : createVisual(SharedName::of(record->meshName), Transform());
    auto const material = record == nullptr ? frictionMaterialOf(branch.jointName)
                                            : SharedName::of(MotionModel::frictionMaterialOf(*record));
    branch.link = addLink(linkFrame, linkName, joint, mass, material, visual);
    branch.link->_impl->setBody(record == nullptr ? _motionModel->records().subActuators.find(branch.jointName)
                                                  : BodyRecord(record));
    joint->_impl->setChildLink(branch.link);
    return branch;
}

SharedName ModelImpl::linkNameOf(std::string const& jointName)
{
    std::string name;
    name.reserve(jointName.size() + 4);
    name.append(jointName).append("Link");
    return {_arena.make<std::string const>(std::move(name))};
}

SharedName ModelImpl::frictionMaterialOf(std::string const& name) const
{
    return SharedName::of(_motionModel->frictionMaterialOf(name));
}

/// `inParentLink` counts where the motion model knows no other place; `parent` is what that reads and writes.
boost::shared_ptr<Joint> ModelImpl::attachJointCalled(std::string const& name, Transform inParentLink,
                                                      std::string& parent, boost::shared_ptr<Link> const& parentLink)
{
    auto const [record, listedName] = _motionModel->findListed(name, _index->nextJoint);
    _motionModel->transformFromJointName(*listedName, inParentLink, parent);
    return attachJoint(SharedName::of(*listedName), inParentLink, parentLink, {record});
}

boost::shared_ptr<Joint> ModelImpl::attachJoint(SharedName const& name, Transform const& inParentLink,
                                                boost::shared_ptr<Link> const& parentLink, JointSource const& source)
{
    FramePtr const frame = addFrame(name, inParentLink, parentLink->_impl->frame());
    auto const joint = addJoint(frame, name, parentLink, source);
    parentLink->_impl->addChildJoint(joint);
    return joint;
}

boost::shared_ptr<Joint> ModelImpl::addJoint(FramePtr const& frame, SharedName const& name,
                                             boost::shared_ptr<Link> const& parentLink, JointSource const& source)
{
    auto const joint = makeElement<Joint, JointImpl>(frame, name, parentLink, source);
    _joints.push_back(joint);
    _index->joints.addLast();
    return joint;
}

boost::shared_ptr<Link> ModelImpl::addLink(FramePtr const& frame, SharedName const& name,
                                           boost::shared_ptr<Joint> const& parentJoint,
                                           boost::shared_ptr<MassData const> const& mass,
                                           SharedValue<std::string> const& frictionMaterial,
                                           boost::shared_ptr<VisualData const> const& visual)
{
    return addLinkOfType(Link::Regular, frame, name, parentJoint, mass, frictionMaterial, visual);
}

boost::shared_ptr<Link> ModelImpl::addWheel(FramePtr const& frame, SharedName const& name,
                                            boost::shared_ptr<Joint> const& parentJoint,
                                            boost::shared_ptr<MassData const> const& mass,
                                            SharedValue<std::string> const& frictionMaterial,
                                            boost::shared_ptr<VisualData const> const& visual)
{
    return addLinkOfType(Link::Wheel, frame, name, parentJoint, mass, frictionMaterial, visual);
}

boost::shared_ptr<Link> ModelImpl::addLinkOfType(Link::LinkType type, FramePtr const& frame, SharedName const& name,
                                                 boost::shared_ptr<Joint> const& parentJoint,
                                                 boost::shared_ptr<MassData const> const& mass,
                                                 SharedValue<std::string> const& frictionMaterial,
                                                 boost::shared_ptr<VisualData const> const& visual)
{
    auto const link = makeElement<Link, LinkImpl>(frame, name, parentJoint, mass, frictionMaterial, type, visual);
    JointConfig const& body = parentJoint == nullptr ? _motionModel->records().root : parentJoint->_impl->record();
    link->_impl->setNameInText(body.linkName);
    _links.push_back(link);
    _index->links.addLast();
    return link;
}

boost::shared_ptr<MassData const> ModelImpl::massOf(JointConfig const& record)
{
    return createMass(record.mass, record.centerOfMass, SharedValue<std::vector<float>>::of(record.inertiaMatrix));
}

boost::shared_ptr<MassData const> ModelImpl::massOf(std::string const& name)
{
    float mass = 0.0F;
    Position3D com;
    std::vector<float> inertia(9, 0.0F);
    _motionModel->mass(name, mass);
    _motionModel->CoM(name, com);
    _motionModel->inertiaMatrix(name, inertia);
    return createMass(mass, com, std::move(inertia));
}

boost::shared_ptr<MassData const> ModelImpl::requiredMassOf(Subject subject, std::string const& name)
{
    float mass = 0.0F;
    Position3D com;
    std::vector<float> inertia;
    require(_motionModel->mass(name, mass), subject, name, "Could not fetch mass for ", name);
    require(_motionModel->CoM(name, com), subject, name, "Could not fetch CoM for ", name);
    require(_motionModel->inertiaMatrix(name, inertia), subject, name, "Could not fetch inertia matrix for ", name);
    return createMass(mass, com, std::move(inertia));
}

/// What is missing here is missing for a reason that ends the load later on, and that its finding names.
boost::shared_ptr<VisualData const> ModelImpl::visualOf(std::string const& name)
{
    auto const sayIfMissing = [&](bool known, char const* message) {
        if (!known && _saysAloud) {
            std::cerr << message << name << std::endl;
        }
    };
    std::string path;
    Transform transform;
    sayIfMissing(_motionModel->meshNameFromJointName(name, path), "Could not fetch meshPath for ");
    sayIfMissing(_motionModel->meshTransformFromJointName(name, transform), "Could not fetch meshTransform for ");
    return createVisual(path, transform);
}

boost::shared_ptr<VisualData const> ModelImpl::requiredVisualOf(std::string const& name)
{
    std::string path;
    Transform transform;
    require(_motionModel->meshNameFromJointName(name, path), Subject::root, name, "Could not fetch meshPath for ",
            name);
    require(_motionModel->meshTransformFromJointName(name, transform), Subject::root, name,
            "Could not fetch meshTransform for ", name);
    return createVisual(path, transform);
}

}  // namespace Sim
