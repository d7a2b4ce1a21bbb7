#ifndef PYTHON_PROPERTIES_HPP
#define PYTHON_PROPERTIES_HPP

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

#include "arrays.hpp"
#include "element.hpp"
#include "enumerations.hpp"

/// Tables of what Python can ask of elements.
namespace Python {

/// What Python calls it, what its help says, and what is asked: a getter of the element or, for what is to be known of
/// the model too, a function of the element as Python holds it.
template <class Get>
struct Property {
    char const* name;
    char const* help;
    Get get;
};
template <class Get>
Property(char const*, char const*, Get) -> Property<Get>;

/// What a getter answers, as Python has it.
template <class Value>
py::object valueOf(ModelPtr const& /*owner*/, Value const& value)
{
    if constexpr (std::is_enum_v<Value>) {
        return enumerator(value);
    } else if constexpr (std::is_base_of_v<py::object, Value>) {
        return value;
    } else {
        return py::cast(value);
    }
}
template <class Type>
py::object valueOf(ModelPtr const& owner, Type const* element)
{
    return toPython(owner, element);
}
template <class Type>
py::object valueOf(ModelPtr const& owner, std::vector<Type const*> const& elements)
{
    return elementsOf(owner, elements);
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
inline py::object valueOf(ModelPtr const& /*owner*/, Varo::Math::Transform const& pose)
{
    return arrayOf(pose);
}

/// Whether elements of the type can be asked for the property.
template <class Type, class Get>
constexpr bool hasGetter = std::is_invocable_v<Get, Type const&> || std::is_invocable_v<Get, Element<Type> const&>;

template <class Type, class Get>
void defineProperty(ElementClass<Type>& declared, Property<Get> const& property)
{
    declared.def_property_readonly(
        property.name,
        [get = property.get](Element<Type> const& self) {
            if constexpr (std::is_invocable_v<Get, Type const&>) {
                return valueOf(self.owner, std::invoke(get, *self));
            } else {
                return valueOf(self.owner, std::invoke(get, self));
            }
        },
        property.help);
}

template <class Type, class... Gets>
void defineProperties(ElementClass<Type>& declared, std::tuple<Property<Gets>...> const& table)
{
    std::apply([&declared](auto const&... property) { (defineProperty(declared, property), ...); }, table);
}

/// Those properties of the table that elements of the type can be asked for.
template <class Type, class... Gets>
void definePropertiesThatItHas(ElementClass<Type>& declared, std::tuple<Property<Gets>...> const& table)
{
    auto const defineIfThere = [&declared](auto const& property) {
        if constexpr (hasGetter<Type, decltype(property.get)>) {
            defineProperty(declared, property);
        }
    };
    std::apply([&defineIfThere](auto const&... property) { (defineIfThere(property), ...); }, table);
}

}  // namespace Python

/// The getter of that name, for those classes that have it.
#define PYTHON_GETTER(getter) [](auto const& of) -> decltype(of.getter()) { return of.getter(); }

#endif
