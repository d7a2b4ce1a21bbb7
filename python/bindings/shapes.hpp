#ifndef PYTHON_SHAPES_HPP
#define PYTHON_SHAPES_HPP

#include <pybind11/pybind11.h>

#include "sim/link.hpp"

namespace Python {

/// Of a link, as tuples of the package's classes Visual and Collision.
pybind11::tuple visualsOf(Sim::Link const& link);
pybind11::tuple collisionsOf(Sim::Link const& link);

}  // namespace Python

#endif
