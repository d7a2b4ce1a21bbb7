#ifndef VARO_CORE_FRAME_IMPL_HPP
#define VARO_CORE_FRAME_IMPL_HPP

#include <string>

#include <boost/shared_ptr.hpp>

#include "core/element_ref.hpp"
#include "core/shared_value.hpp"
#include "sim/frame.hpp"

namespace Sim {

inline constexpr char frameErrorMsg[] = "Could not query Frame as it seems not correctly constructed.";

class FrameImpl {
public:
    FrameImpl(SharedName const& name, Varo::Math::Transform const& position,
              boost::shared_ptr<Frame const> const& parent)
        : _name(name), _parentFrame(parent), _position(position)
    {}
    virtual ~FrameImpl() = default;

    std::string const& name() const { return _name; }
    SharedName const& sharedName() const { return _name; }
    virtual Varo::Math::Transform const& position() const { return _position; }
    boost::shared_ptr<Frame const> parentFrame() const { return _parentFrame.lock(); }

private:
    SharedName _name;
    ElementRef<Frame const> _parentFrame;
    Varo::Math::Transform _position;
};

}  // namespace Sim

#endif
