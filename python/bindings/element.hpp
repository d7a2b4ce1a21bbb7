#ifndef PYTHON_ELEMENT_HPP
#define PYTHON_ELEMENT_HPP

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <pybind11/pybind11.h>

#include "findings.hpp"
#include "sim/model.hpp"
#include "types.hpp"

namespace Python {

/// A model, and where it is from.
struct LoadedModel {
    Sim::Model model;
    std::string file;  ///< as messages name it
    bool isFromFile = false;  ///< rather than from a text
};

/// Whatever Python holds of a model has one of these, so that no model ends before its elements.
using ModelPtr = std::shared_ptr<LoadedModel>;

template <class Type>
struct TypeTag {
    using type = Type;
};

/// The class that Python derives that of `Type` from, void for none. All actuators are alike in what they share.
template <class Type>
constexpr auto parentOf()
{
    constexpr auto derivesFrom = [](auto tag) {
        using Base = typename decltype(tag)::type;
        return std::is_base_of_v<Base, Type> && !std::is_same_v<Base, Type>;
    };
    if constexpr (derivesFrom(TypeTag<Sim::Actuator>())) {
        return TypeTag<Sim::Actuator>();
    } else if constexpr (derivesFrom(TypeTag<Sim::DCMSensor>())) {
        return TypeTag<Sim::DCMSensor>();
    } else if constexpr (derivesFrom(TypeTag<Sim::BaseCamera>())) {
        return TypeTag<Sim::BaseCamera>();
    } else if constexpr (derivesFrom(TypeTag<Sim::Sensor>())) {
        return TypeTag<Sim::Sensor>();
    } else {
        return TypeTag<void>();
    }
}
template <class Type>
using ParentOf = typename decltype(parentOf<Type>())::type;

/// An element of whatever class, and the model that it belongs to.
struct AnyElement {
    ModelPtr owner;
    void const* pointer;  ///< to the class of the family: to a Sim::Sensor for a camera
};

/// An element of a class. Those of devices derive from each other as the devices do.
template <class Type, class Parent = ParentOf<Type>>
struct Element : Element<Parent> {
    Element(ModelPtr const& model, Type const* element) : Element<Parent>(model, element) {}

    Type const* operator->() const { return static_cast<Type const*>(Element<Parent>::operator->()); }
    Type const& operator*() const { return *operator->(); }
};
template <class Type>
struct Element<Type, void> : AnyElement {
    Element(ModelPtr const& model, Type const* element) : AnyElement{model, element} {}

    Type const* operator->() const { return static_cast<Type const*>(pointer); }
    Type const& operator*() const { return *operator->(); }
};

/// The class of Python for elements of a type.
template <class Type>
using BaseOf = std::conditional_t<std::is_void_v<ParentOf<Type>>, AnyElement, Element<ParentOf<Type>>>;
template <class Type>
using ElementClass = py::class_<Element<Type>, BaseOf<Type>>;

/// As an object of the class that `element` is of, None for null.
template <class Type>
py::object toPython(ModelPtr const& owner, Type const* element)
{
    return element == nullptr ? py::none() : py::cast(Element<Type>(owner, element));
}

/// The same of a device, whose class its type tells.
template <class Device, class Kinds>
py::object deviceToPython(ModelPtr const& owner, Device const* device, Kinds const& kinds)
{
    py::object object = py::none();
    auto const castIfOf = [&](auto const& kind) {
        using Class = typename std::decay_t<decltype(kind)>::Class;
        if (device != nullptr && kind.type == device->type()) {
            object = py::cast(Element<Class>(owner, static_cast<Class const*>(device)));
        }
    };
    std::apply([&](auto const&... kind) { (castIfOf(kind), ...); }, kinds);
    return object;
}
inline py::object toPython(ModelPtr const& owner, Sim::Sensor const* sensor)
{
    return deviceToPython(owner, sensor, Sim::sensorKinds);
}
inline py::object toPython(ModelPtr const& owner, Sim::Actuator const* actuator)
{
    return deviceToPython(owner, actuator, Sim::actuatorKinds);
}

template <class Type>
py::tuple tupleOf(ModelPtr const& owner, std::vector<Type const*> const& pointers)
{
    py::tuple tuple(pointers.size());
    for (std::size_t i = 0; i < pointers.size(); ++i) {
        tuple[i] = toPython(owner, pointers[i]);
    }
    return tuple;
}

/// A sequence that finds its elements by their names, too.
template <class Type>
py::object elementsOf(ModelPtr const& owner, std::vector<Type const*> const& pointers)
{
    return packageClass("Elements")(tupleOf(owner, pointers));
}

/// Those of the classes that it derives from are declared before it.
template <class Type>
ElementClass<Type> declareElement(py::module_& module, char const* name, char const* documentation)
{
    return declareMadeByModels<Element<Type>, BaseOf<Type>>(module, name, documentation);
}

/// Of elements that a description states: where.
template <class Type>
void definePlace(ElementClass<Type>& declared)
{
    declared.def_property_readonly(
        "place", [](Element<Type> const& self) { return placeOf(self.owner->model.place(*self), self.owner->file); },
        "Where the description states it.");
}

}  // namespace Python

#endif
