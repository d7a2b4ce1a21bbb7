#ifndef PYTHON_PATHS_HPP
#define PYTHON_PATHS_HPP

#include <string>

#include "types.hpp"

/// Names of files and folders, as the system has them.
namespace Python {

/// Of anything that is like a path. Raises TypeError for what is not, and ValueError for what names no file.
inline std::string fromPath(py::handle path)
{
    PyObject* encoded = nullptr;
    if (PyUnicode_FSConverter(path.ptr(), &encoded) == 0) {
        throw py::error_already_set();
    }
    return py::reinterpret_steal<py::bytes>(encoded);
}

/// A str that `open` takes for the same file.
inline py::str toPath(std::string const& path)
{
    return checked<py::str>(PyUnicode_DecodeFSDefaultAndSize(path.data(), static_cast<Py_ssize_t>(path.size())));
}

}  // namespace Python

#endif
