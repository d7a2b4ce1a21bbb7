#ifndef VARO_MODEL_MESH_SEARCH_HPP
#define VARO_MODEL_MESH_SEARCH_HPP

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "varo/export.hpp"

/// Where the files are that a description names: meshes, and textures too. docs/meshes.md states the rules. Only
/// std::bad_alloc is thrown: what is in the way of a folder or a file counts as its absence.
namespace Varo::Model {

/// Where files are looked for. Folders that do not exist do no harm. A plain value.
struct MeshFolders {
    std::string description;  ///< the folder of the description; empty for a text that stands in none
    std::map<std::string, std::string> packages;  ///< folders of packages, by the packages' names
    std::vector<std::string> packagePath;  ///< folders that are packages, or have packages somewhere below them
    std::vector<std::string> prefixes;  ///< folders that have packages in their folder "share"
};

/// The package path that the environment states in ROS_PACKAGE_PATH, and the prefixes of AMENT_PREFIX_PATH. No other
/// thread may change the environment meanwhile.
VAROROBOTMODEL_API MeshFolders meshFoldersFromEnvironment();

/// What became of the search for one file.
struct MeshFile {
    std::string path;  ///< of the file; empty when it was not found
    std::string reason;  ///< a sentence: why it was not found; empty when it was
    std::vector<std::string> lookedFor;  ///< when it was not found: the files that are not there or, of an unknown
                                         ///< package, the folders in which that was looked for; may be empty
};

/// Finds the files that URIs name: "package://NAME/path", "model://NAME/path", "file:///path", and paths, of which
/// relative ones begin at the folder of the description.
///
/// Never opens what it finds, and asks no other machine: it reads the entries of folders, and the names in files called
/// package.xml. Folders are read when the first URI with a package is looked for, and then remembered. Any number of
/// threads may search at once.
class VAROROBOTMODEL_API MeshSearch {
public:
    /// Below a folder of the package path, packages are found so many folders deep.
    static constexpr int maximumDepth = 8;
    /// So many entries of folders are read at most, of all folders of the package path together.
    static constexpr int maximumEntries = 100'000;

    /// Reads nothing yet.
    explicit MeshSearch(MeshFolders folders);
    MeshSearch(MeshSearch const&) = delete;
    MeshSearch& operator=(MeshSearch const&) = delete;
    ~MeshSearch();

    /// The first file that there is among those that the URI may mean. Never throws for what the URI says.
    MeshFile find(std::string const& uri) const;

private:
    class Packages;

    MeshFile findInPackage(std::string const& name, std::string const& path) const;

    MeshFolders _folders;
    std::unique_ptr<Packages> _packages;
};

}  // namespace Varo::Model

#endif
