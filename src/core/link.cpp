#include "sim/link.hpp"

#include "core/handle.hpp"
#include "core/link_impl.hpp"

namespace Sim {

Link::Link() : _impl(nullptr) {}

Link::~Link()
{
    delete _impl;
}

Frame const* Link::frame() const
{
    return implOf(_impl, linkErrorMsg).frame().get();
}

std::string const& Link::name() const
{
    return implOf(_impl, linkErrorMsg).name();
}

std::string const& Link::descriptionName() const
{
    return implOf(_impl, linkErrorMsg).descriptionName();
}

Joint const* Link::parentJoint() const
{
    return implOf(_impl, linkErrorMsg).parentJoint().get();
}

MassData const* Link::mass() const
{
    return implOf(_impl, linkErrorMsg).massData().get();
}

std::string const& Link::frictionMaterial() const
{
    return implOf(_impl, linkErrorMsg).frictionMaterial();
}

Link::LinkType Link::type() const
{
    return implOf(_impl, linkErrorMsg).type();
}

VisualData const* Link::visual() const
{
    return implOf(_impl, linkErrorMsg).visualData().get();
}

std::vector<Visual> Link::visuals() const
{
    return implOf(_impl, linkErrorMsg).body().visuals();
}

std::vector<Collision> Link::collisions() const
{
    return implOf(_impl, linkErrorMsg).body().collisions();
}

std::vector<Joint const*> Link::childrenJoints() const
{
    return rawPointers(implOf(_impl, linkErrorMsg).childrenJoints());
}

}  // namespace Sim
