#ifndef PYTHON_FINDINGS_HPP
#define PYTHON_FINDINGS_HPP

#include <string>

#include <pybind11/pybind11.h>

#include "varo/model/finding.hpp"
#include "varo/model/place.hpp"

namespace Python {

namespace py = pybind11;

py::object placeOf(Varo::Model::Place const& place, std::string const& file);

/// A list of objects of the package's class Finding, which name their file.
py::list findingsOf(Varo::Model::Findings const& findings, std::string const& file);

}  // namespace Python

#endif
