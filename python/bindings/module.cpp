#include <pybind11/pybind11.h>

#include "classes.hpp"

PYBIND11_MODULE(_core, module)
{
    pybind11::options options;
    options.disable_function_signatures();  // `define` writes them as Python's own functions have them

    module.doc() = "What of the package is compiled: models, their elements, and how they move.";
    module.attr("__version__") = VAROROBOTMODEL_VERSION;
    Python::defineModel(module);
    Python::defineElement(module);
    Python::defineStructure(module);
    Python::defineGroups(module);
    auto devices = module.def_submodule("devices", "The classes of sensors and actuators.");
    Python::defineSensors(devices);
    Python::defineActuators(devices);
    Python::defineKinematics(module);
    Python::defineConfiguration(module);
    Python::defineMeshes(module);
    Python::defineReading(module);
}
