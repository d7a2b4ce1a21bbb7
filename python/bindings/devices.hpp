#ifndef PYTHON_DEVICES_HPP
#define PYTHON_DEVICES_HPP

#include <algorithm>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

#include "element.hpp"

/// What the classes of sensors and actuators are declared with.
namespace Python {

/// What all devices of a family have.
template <class Class>
void defineDevice(Class& device, char const* enumeration)
{
    using Handle = typename Class::type;
    defineIdentity(device);
    definePlace(device);
    device.def_property_readonly(
        "name", [](Handle const& self) { return self->name(); }, "As in the description.");
    device.def_property_readonly(
        "type", [enumeration](Handle const& self) { return enumerator(enumeration, self->type()); },
        "The kind, which its class stands for.");
    device.def_property_readonly(
        "frame", [](Handle const& self) { return toPython(self.owner, self->frame()); }, "Where it sits.");
    device.def_property_readonly(
        "buffer_size", [](Handle const& self) { return self->bufferSize(); },
        "The number of bytes of one reading, or of one command.");
    device.def("__repr__", [](py::object const& self) {
        return py::str("<{} {!r} at {!r}>")
            .format(py::type::of(self).attr("__name__"), self.attr("name"), self.attr("frame").attr("name"));
    });
}

/// What a getter answers, as Python has it.
template <class Value>
py::object valueOf(ModelPtr const& /*owner*/, Value const& value)
{
    return py::cast(value);
}
template <class Type>
py::object valueOf(ModelPtr const& owner, Type const* element)
{
    return toPython(owner, element);
}
template <class Type>
py::object valueOf(ModelPtr const& owner, std::vector<std::pair<Type const*, float>> const& pairs)
{
    py::list list;
    for (auto const& [element, number] : pairs) {
        list.append(py::make_tuple(toPython(owner, element), number));
    }
    return py::tuple(list);
}
inline py::object valueOf(ModelPtr const& /*owner*/, std::vector<std::string> const& texts)
{
    return py::tuple(py::cast(texts));
}
inline py::object valueOf(ModelPtr const& /*owner*/, Sim::LEDActuator::Color color)
{
    return enumerator("Color", color);
}

/// Declares a property of a class of devices, unless `get` cannot be asked of it.
template <class Device, class Class, class Get>
void defineIfThere(Class& device, char const* name, Get get, char const* documentation)
{
    if constexpr (std::is_invocable_v<Get, Device const&>) {
        device.def_property_readonly(
            name, [get](Element<Device> const& self) { return valueOf(self.owner, get(*self)); }, documentation);
    }
}

}  // namespace Python

/// The getter of that name, for those classes that have it.
#define PYTHON_GETTER(getter) [](auto const& of) -> decltype(of.getter()) { return of.getter(); }

#endif
