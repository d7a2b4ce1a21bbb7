#ifndef PYTHON_TYPES_HPP
#define PYTHON_TYPES_HPP

#include <string>
#include <typeinfo>
#include <utility>

#include <pybind11/pybind11.h>

/// What bindings of all kinds are written with.
namespace Python {

namespace py = pybind11;

/// A class of the package that is written in Python: an enumeration, a value, an exception.
inline py::object packageClass(char const* name)
{
    return py::module_::import("varorobotmodel").attr(name);
}

/// What a function of Python's own interface made; null stands for the exception that it has raised.
template <class Type>
Type checked(PyObject* made)
{
    if (made == nullptr) {
        throw py::error_already_set();
    }
    return py::reinterpret_steal<Type>(made);
}

/// For texts that need not be UTF-8: what messages quote of a broken file.
inline py::str textOf(std::string const& text)
{
    return checked<py::str>(PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace"));
}

/// Raises an exception of the package.
[[noreturn]] inline void raise(py::object const& exception)
{
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(exception.ptr())), exception.ptr());
    throw py::error_already_set();
}

/// The documentation of a function or method with the signature that Python shows: `pose(self, q, frame)`. Type
/// checkers compare it with that in the stubs.
inline std::string documentationOf(std::string const& signature, std::string const& text)
{
    return signature + "\n--\n\n" + text;
}

/// Declares a function or method under its signature.
template <class Scope, class Function, class... Arguments>
void define(Scope& scope, std::string const& signature, Function&& function, std::string const& text,
            Arguments const&... arguments)
{
    std::string const name = signature.substr(0, signature.find('('));
    scope.def(name.c_str(), std::forward<Function>(function), arguments..., documentationOf(signature, text).c_str());
}

/// Declares a class. pybind's own metaclass, which is for properties of classes, is not needed here.
template <class Type, class... Options>
py::class_<Type, Options...> declareClass(py::module_& module, char const* name, char const* documentation)
{
    auto declared = py::class_<Type, Options...>(module, name, documentation,
                                                 py::metaclass(reinterpret_cast<PyObject*>(&PyType_Type)));
    declared.attr("__module__") = "varorobotmodel";
    return declared;
}

/// The same of a class whose objects only models make: Python cannot make one that stands for nothing, be it by
/// `__new__`.
template <class Type, class... Options>
py::class_<Type, Options...> declareMadeByModels(py::module_& module, char const* name, char const* documentation)
{
    auto declared = declareClass<Type, Options...>(module, name, documentation);
    py::delattr(declared, "__init__");
    reinterpret_cast<PyTypeObject*>(declared.ptr())->tp_new = nullptr;
    return declared;
}

/// Takes no object of a class that Python can derive from which has missed its `__init__`.
template <class Type>
struct MadeObjectCaster : py::detail::type_caster_base<Type> {
    bool load(py::handle source, bool convert)
    {
        return isMade(source) && py::detail::type_caster_base<Type>::load(source, convert);
    }

private:
    static bool isMade(py::handle source)
    {
        auto const* const type = py::detail::get_type_info(typeid(Type));
        bool const isOfClass = PyObject_TypeCheck(source.ptr(), type->type) != 0;
        return isOfClass &&
               reinterpret_cast<py::detail::instance*>(source.ptr())->get_value_and_holder().holder_constructed();
    }
};

}  // namespace Python

#endif
