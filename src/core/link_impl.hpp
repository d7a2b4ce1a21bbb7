#ifndef VARO_CORE_LINK_IMPL_HPP
#define VARO_CORE_LINK_IMPL_HPP

#include <string>
#include <vector>

#include <boost/container/small_vector.hpp>
#include <boost/shared_ptr.hpp>

#include "core/body_record.hpp"
#include "core/element_ref.hpp"
#include "core/shared_value.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/visual_data.hpp"

namespace Sim {

inline constexpr char linkErrorMsg[] = "Could not query Link as it seems not correctly constructed.";

class LinkImpl {
public:
    LinkImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name,
             boost::shared_ptr<Joint> const& parentJoint, boost::shared_ptr<MassData const> const& massData,
             SharedValue<std::string> const& frictionMaterial, Link::LinkType type,
             boost::shared_ptr<VisualData const> const& visualData);
    virtual ~LinkImpl() = default;

    /// `name` must outlive this.
    void setNameInText(std::string const& name) { _nameInText = name.empty() ? nullptr : &name; }
    void setBody(BodyRecord const& body) { _body = body; }
    void addChildJoint(boost::shared_ptr<Joint> const& joint) { _childrenJoints.push_back(joint); }

    boost::shared_ptr<Frame const> frame() const { return _frame.lock(); }
    std::string const& name() const { return _name; }
    std::string const& descriptionName() const { return _nameInText == nullptr ? name() : *_nameInText; }
    SharedName const& sharedName() const { return _name; }
    boost::shared_ptr<Joint> parentJoint() const { return _parentJoint.lock(); }
    boost::shared_ptr<MassData const> massData() const { return _massData; }
    std::string const& frictionMaterial() const { return _frictionMaterial; }
    Link::LinkType type() const { return _type; }
    boost::shared_ptr<VisualData const> visualData() const { return _visualData; }
    BodyRecord const& body() const { return _body; }
    /// Those that still exist, in the order in which they were added.
    std::vector<boost::shared_ptr<Joint>> childrenJoints() const;

private:
    ElementRef<Frame const> _frame;
    SharedName _name;
    std::string const* _nameInText = nullptr;  // the record's
    ElementRef<Joint> _parentJoint;
    boost::container::small_vector<ElementRef<Joint>, 1> _childrenJoints;  // most links have one
    boost::shared_ptr<MassData const> _massData;
    SharedValue<std::string> _frictionMaterial;
    Link::LinkType _type;
    boost::shared_ptr<VisualData const> _visualData;
    BodyRecord _body;
};

}  // namespace Sim

#endif
