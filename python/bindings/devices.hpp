#ifndef PYTHON_DEVICES_HPP
#define PYTHON_DEVICES_HPP

#include <string>
#include <tuple>
#include <type_traits>

#include "properties.hpp"

/// What the classes of sensors and actuators are declared with.
namespace Python {

/// What Python's help says of the class of a kind of devices.
template <class Device>
struct Help {
    char const* text;
};

/// What all devices of a family have.
inline constexpr std::tuple deviceProperties{
    Property{"name", "As in the description.", PYTHON_GETTER(name)},
    Property{"type", "The kind, which its class stands for.", PYTHON_GETTER(type)},
    Property{"frame", "Where it sits.", PYTHON_GETTER(frame)},
    Property{"buffer_size", "The number of bytes of one reading, or of one command.", PYTHON_GETTER(bufferSize)},
};

/// Declares the class of a family.
template <class Device>
ElementClass<Device> declareFamily(py::module_& module, char const* name, char const* documentation)
{
    auto family = declareElement<Device>(module, name, documentation);
    defineProperties(family, deviceProperties);
    definePlace(family);
    family.def("__repr__", [](py::object const& self) {
        return py::str("<{} {!r} at {!r}>")
            .format(py::type::of(self).attr("__name__"), self.attr("name"), self.attr("frame").attr("name"));
    });
    return family;
}

/// Declares the class of each kind of a family: its name ends with that of the family, and it has those of the
/// properties that the kind has and the family has not.
template <class Kinds, class Helps, class Properties>
void declareKinds(py::module_& module, std::string const& family, Kinds const& kinds, Helps const& helps,
                  Properties const& properties)
{
    auto const declare = [&](auto const& kind) {
        using Device = typename std::decay_t<decltype(kind)>::Class;
        auto device = declareElement<Device>(module, (kind.name + family).c_str(), std::get<Help<Device>>(helps).text);
        definePropertiesThatItHas(device, properties);
    };
    std::apply([&](auto const&... kind) { (declare(kind), ...); }, kinds);
}

}  // namespace Python

#endif
