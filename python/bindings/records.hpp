#ifndef PYTHON_RECORDS_HPP
#define PYTHON_RECORDS_HPP

#include "element.hpp"

/// What the model has no elements of, but its records do.
namespace Python {

/// Of the package's class Transmission, as a sequence that finds them by their names.
py::object transmissionsOf(LoadedModel const& loaded);

/// Of the package's class Extension.
py::tuple extensionsOf(LoadedModel const& loaded);

/// The values of each posture by its name. The first of several postures of one name counts, as it does for
/// configurations.
py::dict posturesOf(LoadedModel const& loaded);

}  // namespace Python

#endif
