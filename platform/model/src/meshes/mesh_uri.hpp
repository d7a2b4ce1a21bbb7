#ifndef VARO_MODEL_MESHES_MESH_URI_HPP
#define VARO_MODEL_MESHES_MESH_URI_HPP

#include <string>
#include <string_view>

namespace Varo::Model {

/// A URI taken apart, its percent escapes resolved.
struct MeshUri {
    std::string package;  ///< empty for a path
    std::string path;  ///< of the file, in the package if there is one
    char const* refusal = nullptr;  ///< a sentence: why it means no file of this machine; null when it may mean one
};

/// Takes time linear in the URI.
MeshUri parseMeshUri(std::string_view uri);

}  // namespace Varo::Model

#endif
