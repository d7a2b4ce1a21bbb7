#ifndef VARO_CORE_JOINT_IMPL_HPP
#define VARO_CORE_JOINT_IMPL_HPP

#include <string>

#include <boost/shared_ptr.hpp>

#include "core/element_ref.hpp"
#include "core/shared_value.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"

namespace Sim {

inline constexpr char jointErrorMsg[] = "Could not query Joint as it seems not correctly constructed";

/// What a joint was made of: records of the model's own, which outlive its elements.
struct JointSource {
    Varo::Model::JointConfig const* joint = nullptr;  ///< null for wheels and sub-joints
    Varo::Model::WheelConfig const* wheel = nullptr;  ///< null for what is no wheel
};

class JointImpl {
public:
    JointImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name,
              boost::shared_ptr<Link> const& parentLink, JointSource const& source = {})
        : _frame(frame), _name(name), _parentLink(parentLink), _source(source)
    {}

    void setChildLink(boost::shared_ptr<Link> const& link) { _childLink = link; }

    boost::shared_ptr<Frame const> frame() const { return _frame.lock(); }
    std::string const& name() const { return _name; }
    SharedName const& sharedName() const { return _name; }
    boost::shared_ptr<Link> parentLink() const { return _parentLink.lock(); }
    boost::shared_ptr<Link> childLink() const { return _childLink.lock(); }
    /// What it was made of.
    JointSource const& source() const { return _source; }
    /// One for all wheels, and one for all sub-joints, says what has no record of its own.
    Varo::Model::JointConfig const& record() const;
    float effort() const { return isWheel() ? _source.wheel->maxTorque : record().maxTorque; }
    float velocity() const { return isWheel() ? _source.wheel->maxVelocity : record().maxAngularSpeed; }

private:
    bool isWheel() const { return _source.wheel != nullptr; }

    ElementRef<Frame const> _frame;
    SharedName _name;
    ElementRef<Link> _parentLink;
    ElementRef<Link> _childLink;
    JointSource _source;
};

}  // namespace Sim

#endif
