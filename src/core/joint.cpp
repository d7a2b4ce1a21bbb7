#include "sim/joint.hpp"

#include "core/handle.hpp"
#include "core/joint_impl.hpp"

namespace Sim {

Joint::Joint() : _impl(nullptr) {}

Joint::~Joint()
{
    delete _impl;
}

Frame const* Joint::frame() const
{
    return implOf(_impl, jointErrorMsg).frame().get();
}

std::string const& Joint::name() const
{
    return implOf(_impl, jointErrorMsg).name();
}

Link const* Joint::parentLink() const
{
    return implOf(_impl, jointErrorMsg).parentLink().get();
}

Link const* Joint::childLink() const
{
    return implOf(_impl, jointErrorMsg).childLink().get();
}

}  // namespace Sim
