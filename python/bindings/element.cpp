#include "element.hpp"

#include <functional>

#include "classes.hpp"

namespace Python {

void defineElement(py::module_& module)
{
    auto element = declareMadeByModels<AnyElement>(
        module, "Element",
        "What models are made up of. Elements are equal when they stand for the same one of the same model.");
    define(
        element, "__eq__(self, value, /)",
        [](AnyElement const& self, AnyElement const& value) { return self.pointer == value.pointer; },
        "Whether both stand for the same element of the same model.", py::is_operator());
    define(
        element, "__hash__(self, /)", [](AnyElement const& self) { return std::hash<void const*>()(self.pointer); },
        "Goes with ==.");
    element.def_property_readonly(
        "model", [](AnyElement const& self) { return self.owner; }, "The model that it belongs to.");
}

}  // namespace Python
