#ifndef PYTHON_CLASSES_HPP
#define PYTHON_CLASSES_HPP

#include <pybind11/pybind11.h>

/// What the module is put together from. A class is declared before others derive from it.
namespace Python {

void defineElement(pybind11::module_& module);
void defineMeshes(pybind11::module_& module);
void defineReading(pybind11::module_& module);
void defineModel(pybind11::module_& module);
void defineStructure(pybind11::module_& module);
void defineGroups(pybind11::module_& module);
void defineSensors(pybind11::module_& module);
void defineActuators(pybind11::module_& module);
void defineConfiguration(pybind11::module_& module);
void defineKinematics(pybind11::module_& module);

}  // namespace Python

#endif
