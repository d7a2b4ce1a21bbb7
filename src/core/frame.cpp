#include "sim/frame.hpp"

#include "core/frame_impl.hpp"
#include "core/handle.hpp"

namespace Sim {

Frame::Frame() : _impl(nullptr) {}

Frame::~Frame()
{
    delete _impl;
}

std::string const& Frame::name() const
{
    return implOf(_impl, frameErrorMsg).name();
}

Frame const* Frame::parentFrame() const
{
    return implOf(_impl, frameErrorMsg).parentFrame().get();
}

Varo::Math::Transform const& Frame::localPosition() const
{
    return implOf(_impl, frameErrorMsg).position();
}

Varo::Math::Transform const& Frame::position() const
{
    return localPosition();
}

Varo::Math::Transform Frame::globalPosition(Frame const* frame)
{
    // By way of the inverses, from the frame to the root: the order in which the rounding errors are expected.
    Varo::Math::Transform rootInFrame;
    if (frame == nullptr) {
        return rootInFrame;
    }
    rootInFrame = frame->position().inverse();
    for (Frame const* f = frame->parentFrame(); f != nullptr; f = f->parentFrame()) {
        rootInFrame *= f->position().inverse();
    }
    return rootInFrame.inverse();
}

}  // namespace Sim
