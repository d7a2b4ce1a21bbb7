#ifndef TOOL_SUPPORT_MESHES_HPP
#define TOOL_SUPPORT_MESHES_HPP

#include <cstddef>
#include <string>
#include <vector>

#include "varo/model/finding.hpp"
#include "varo/model/mesh_search.hpp"
#include "varo/model/robot.hpp"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace Tool {

namespace codes {
inline constexpr char meshNotFound[] = "mesh-not-found";
}

/// Declares --package and --package-path, which fill the folders beside what the environment says.
std::vector<CLI::Option*> declareMeshFolders(CLI::App& app, Varo::Model::MeshFolders& folders);

/// The folders with that of the description file; the working folder for standard input.
Varo::Model::MeshFolders besideFile(Varo::Model::MeshFolders folders, std::string const& file);

/// A warning of each mesh that is not found, once for each body that names it.
Varo::Model::Findings missingMeshes(Varo::Model::Robot const& robot, Varo::Model::MeshFolders const& folders);

/// How many meshes a robot names, each URI counted once.
struct MeshCount {
    std::size_t found = 0;
    std::size_t notFound = 0;
};
MeshCount countMeshes(Varo::Model::Robot const& robot, Varo::Model::MeshFolders const& folders);

}  // namespace Tool

#endif
