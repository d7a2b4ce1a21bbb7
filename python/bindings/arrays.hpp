#ifndef PYTHON_ARRAYS_HPP
#define PYTHON_ARRAYS_HPP

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include <pybind11/numpy.h>

#include "sim/pose.hpp"
#include "varo/math/position3d.hpp"
#include "varo/math/transform.hpp"

/// Numbers as numpy has them. All arrays are the caller's own.
namespace Python {

namespace py = pybind11;

using Array = py::array_t<double>;

/// Writes a homogeneous 4x4 matrix, whose upper three rows are given.
template <class Number>
void writePose(std::array<Number, 12> const& rows, double* matrix)
{
    constexpr std::array<double, 4> lastRow = {0.0, 0.0, 0.0, 1.0};
    std::copy(lastRow.begin(), lastRow.end(), std::copy(rows.begin(), rows.end(), matrix));
}

template <class Number>
Array poseArray(std::array<Number, 12> const& rows)
{
    Array array({4, 4});
    writePose(rows, array.mutable_data());
    return array;
}

inline Array arrayOf(Varo::Math::Transform const& transform)
{
    return poseArray(transform.rows());
}

inline Array arrayOf(Sim::Pose const& pose)
{
    return poseArray(pose.rows);
}

template <class Numbers>
Array vectorOf(Numbers const& numbers)
{
    Array array(static_cast<py::ssize_t>(numbers.size()));
    std::copy(numbers.begin(), numbers.end(), array.mutable_data());
    return array;
}

inline Array arrayOf(Varo::Math::Position3D const& position)
{
    return vectorOf(std::array{position.x, position.y, position.z});
}

/// Nine numbers, row by row.
template <class Numbers>
Array matrixOf(Numbers const& numbers)
{
    return vectorOf(numbers).reshape({3, 3});
}

/// So many rows, whose columns stand one behind the other.
inline Array columnsOf(std::vector<double> const& entries, py::ssize_t rows)
{
    py::array_t<double, py::array::f_style> array({rows, static_cast<py::ssize_t>(entries.size()) / rows});
    std::copy(entries.begin(), entries.end(), array.mutable_data());
    return array;
}

}  // namespace Python

#endif
