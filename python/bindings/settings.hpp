#ifndef PYTHON_SETTINGS_HPP
#define PYTHON_SETTINGS_HPP

#include <pybind11/pybind11.h>

#include "varo/model/sensor_settings.hpp"

namespace Python {

/// An object of the package's class SensorSettings; None for null.
pybind11::object settingsOf(Varo::Model::SensorSettings const* settings);

}  // namespace Python

#endif
