#include "core/link_impl.hpp"

namespace Sim {

LinkImpl::LinkImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name,
                   boost::shared_ptr<Joint> const& parentJoint, boost::shared_ptr<MassData const> const& massData,
                   SharedValue<std::string> const& frictionMaterial, Link::LinkType type,
                   boost::shared_ptr<VisualData const> const& visualData)
    : _frame(frame),
      _name(name),
      _parentJoint(parentJoint),
      _massData(massData),
      _frictionMaterial(frictionMaterial),
      _type(type),
      _visualData(visualData)
{}

std::vector<boost::shared_ptr<Joint>> LinkImpl::childrenJoints() const
{
    std::vector<boost::shared_ptr<Joint>> children;
    children.reserve(_childrenJoints.size());
    for (auto const& reference : _childrenJoints) {
        if (boost::shared_ptr<Joint> joint = reference.lock()) {
            children.push_back(joint);
        }
    }
    return children;
}

}  // namespace Sim
