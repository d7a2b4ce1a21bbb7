#ifndef VARO_ACTUATORS_ACTUATOR_HANDLE_HPP
#define VARO_ACTUATORS_ACTUATOR_HANDLE_HPP

#include "actuators/actuator_impl.hpp"

namespace Sim {

/// What a level of a handle's copy constructor does: puts a copy of `source`, read as that level's kind, in the place
/// of what the level before it made.
template <class Impl>
void adoptCopy(ActuatorImpl*& mine, ActuatorImpl const* source)
{
    ActuatorImpl* copy = source == nullptr ? nullptr : new Impl(static_cast<Impl const&>(*source));
    delete mine;
    mine = copy;
}

/// What every level of a handle's destructor does; the first to come frees the data.
inline void release(ActuatorImpl*& impl)
{
    delete impl;
    impl = nullptr;
}

}  // namespace Sim

#endif
