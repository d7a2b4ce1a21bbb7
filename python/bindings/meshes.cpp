#include <memory>
#include <string>
#include <vector>

#include <pybind11/stl.h>

#include "classes.hpp"
#include "paths.hpp"
#include "varo/model/mesh_search.hpp"

namespace pybind11::detail {

template <>
struct type_caster<Varo::Model::MeshSearch> : Python::MadeObjectCaster<Varo::Model::MeshSearch> {};

}  // namespace pybind11::detail

namespace Python {

namespace {

using Varo::Model::MeshFile;
using Varo::Model::MeshFolders;
using Varo::Model::MeshSearch;

py::list toPaths(std::vector<std::string> const& paths)
{
    py::list list;
    for (std::string const& path : paths) {
        list.append(toPath(path));
    }
    return list;
}

std::vector<std::string> fromPaths(py::object const& paths)
{
    std::vector<std::string> list;
    for (py::handle const path : py::iter(paths)) {
        list.push_back(fromPath(path));
    }
    return list;
}

py::object foldersFromEnvironment()
{
    MeshFolders const folders = Varo::Model::meshFoldersFromEnvironment();
    return packageClass("MeshFolders")(toPath(folders.description), py::dict(), toPaths(folders.packagePath),
                                       toPaths(folders.prefixes));
}

MeshFolders foldersOf(py::object const& given)
{
    MeshFolders folders;
    folders.description = fromPath(given.attr("description"));
    for (auto const& [name, folder] : py::dict(given.attr("packages"))) {
        folders.packages.emplace(name.cast<std::string>(), fromPath(folder));
    }
    folders.packagePath = fromPaths(given.attr("package_path"));
    folders.prefixes = fromPaths(given.attr("prefixes"));
    return folders;
}

/// Other threads run while folders are read.
MeshFile findFile(MeshSearch const& search, std::string const& uri)
{
    py::gil_scoped_release const release;
    return search.find(uri);
}

py::object find(MeshSearch const& search, std::string const& uri)
{
    MeshFile const file = findFile(search, uri);
    py::object const path = file.path.empty() ? py::object(py::none()) : toPath(file.path);
    return packageClass("MeshFile")(path, textOf(file.reason), py::tuple(toPaths(file.lookedFor)));
}

}  // namespace

void defineMeshes(py::module_& module)
{
    auto search = declareClass<MeshSearch>(
        module, "MeshSearch",
        "Finds the files that descriptions name, meshes and textures, by the URIs that they state.\n\n"
        "Never opens what it finds. Folders are read when the first URI with a package is looked for, and then\n"
        "remembered. Other threads run meanwhile, and may search with the same object.");
    search.def(py::init([](py::object const& folders) { return std::make_unique<MeshSearch>(foldersOf(folders)); }),
               py::arg("folders"),
               documentationOf("__init__(self, folders)", "In MeshFolders. Reads nothing yet.").c_str());
    define(search, "find(self, uri)", find, "The first file that there is among those that the URI may mean.",
           py::arg("uri"));
    search.def("__repr__", [](MeshSearch const& /*self*/) { return "<MeshSearch>"; });
    define(module, "mesh_folders_from_environment()", foldersFromEnvironment,
           "MeshFolders with the package path of ROS_PACKAGE_PATH and the prefixes of AMENT_PREFIX_PATH.");
}

}  // namespace Python
