#ifndef TOOL_SUPPORT_DEVICE_KINDS_HPP
#define TOOL_SUPPORT_DEVICE_KINDS_HPP

#include <tuple>

#include "sim/actuator.hpp"
#include "sim/sensor.hpp"

namespace Tool {

/// Shows `visit` every row of one of the library's tables of kinds.
template <class Kinds, class Visit>
void forEachKind(Kinds const& kinds, Visit const& visit)
{
    std::apply([&visit](auto const&... kind) { (visit(kind), ...); }, kinds);
}

template <class Kinds, class Type>
char const* nameOfType(Kinds const& kinds, Type type)
{
    char const* name = "unknown";
    forEachKind(kinds, [&](auto const& kind) { name = kind.type == type ? kind.name : name; });
    return name;
}

inline char const* typeName(Sim::Actuator const& actuator)
{
    return nameOfType(Sim::actuatorKinds, actuator.type());
}

inline char const* typeName(Sim::Sensor const& sensor)
{
    return nameOfType(Sim::sensorKinds, sensor.type());
}

}  // namespace Tool

#endif
