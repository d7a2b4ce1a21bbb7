#ifndef VARO_MODEL_MESHES_PACKAGE_FOLDERS_HPP
#define VARO_MODEL_MESHES_PACKAGE_FOLDERS_HPP

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace Varo::Model {

/// A folder and the names that it may have as a package.
struct PackageFolder {
    std::filesystem::path path;
    std::string statedName;  ///< in its package.xml; empty without one

    bool isCalled(std::string const& name) const { return path.filename() == name || statedName == name; }
};

/// The folder and those above it, from the inside out.
std::vector<PackageFolder> foldersAbove(std::filesystem::path const& folder);

/// Folders by the names that they may have as packages, of one name in the order in which they were found.
using FoldersByName = std::multimap<std::string, std::filesystem::path>;

/// The folders of a package path and what is below them, outer ones first. Nothing is looked for inside a package.
FoldersByName foldersOnPath(std::vector<std::string> const& packagePath, int maximumDepth, int maximumEntries);

}  // namespace Varo::Model

#endif
