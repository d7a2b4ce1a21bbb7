#include "varo/model/mesh_search.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <string_view>
#include <system_error>
#include <utility>

#include "meshes/mesh_uri.hpp"
#include "meshes/package_folders.hpp"
#include "varo/model/diagnostics.hpp"

namespace Varo::Model {

namespace {

namespace fs = std::filesystem;

/// Of so many folders called like one package the others are passed over.
constexpr std::size_t maximumFolders = 16;

/// A list as environment variables hold it.
std::vector<std::string> listInEnvironment(char const* variable)
{
    std::vector<std::string> list;
    char const* const value = std::getenv(variable);
    std::string_view rest = value == nullptr ? std::string_view() : value;
    while (!rest.empty()) {
        std::size_t const end = std::min(rest.find(':'), rest.size());
        if (end > 0) {
            list.emplace_back(rest.substr(0, end));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return list;
}

bool isFile(fs::path const& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

bool isFolder(fs::path const& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

MeshFile refused(std::string reason)
{
    return {{}, std::move(reason), {}};
}

MeshFile firstThatExists(std::vector<fs::path> const& candidates)
{
    MeshFile file;
    for (fs::path const& each : candidates) {
        if (isFile(each)) {
            return {each.lexically_normal().string(), {}, {}};
        }
        file.lookedFor.push_back(each.lexically_normal().string());
    }
    file.reason = "There is no such file.";
    return file;
}

}  // namespace

MeshFolders meshFoldersFromEnvironment()
{
    MeshFolders folders;
    folders.packagePath = listInEnvironment("ROS_PACKAGE_PATH");
    folders.prefixes = listInEnvironment("AMENT_PREFIX_PATH");
    return folders;
}

/// The folders that packages may be, read when they are asked for.
class MeshSearch::Packages {
public:
    explicit Packages(MeshFolders const& folders) : _folders(folders) {}

    /// Those of one package, in the order in which they are preferred.
    std::vector<fs::path> named(std::string const& name)
    {
        auto const given = _folders.packages.find(name);
        if (given != _folders.packages.end()) {
            return {given->second};
        }
        std::call_once(_read, [this] {
            _above = foldersAbove(_folders.description);
            _onPath = foldersOnPath(_folders.packagePath, maximumDepth, maximumEntries);
        });
        std::vector<fs::path> found;
        for (PackageFolder const& folder : _above) {
            add(folder.isCalled(name) ? folder.path : folder.path / name, found);
        }
        auto const [first, last] = _onPath.equal_range(name);
        for (auto each = first; each != last && found.size() < maximumFolders; ++each) {
            add(each->second, found);
        }
        for (std::string const& prefix : _folders.prefixes) {
            add(fs::path(prefix) / "share" / name, found);
        }
        return found;
    }

    /// Where a package was looked for that is nowhere.
    std::vector<std::string> places() const
    {
        std::vector<std::string> places;
        if (!_above.empty()) {
            places.push_back(_above.front().path.string() + " and the folders above it");
        }
        for (std::string const& folder : _folders.packagePath) {
            places.push_back(folder);
        }
        for (std::string const& prefix : _folders.prefixes) {
            places.push_back((fs::path(prefix) / "share").string());
        }
        return places;
    }

private:
    static void add(fs::path const& folder, std::vector<fs::path>& found)
    {
        bool const isNew = std::find(found.begin(), found.end(), folder) == found.end();
        if (isNew && found.size() < maximumFolders && isFolder(folder)) {
            found.push_back(folder);
        }
    }

    MeshFolders const& _folders;
    std::once_flag _read;
    std::vector<PackageFolder> _above;
    FoldersByName _onPath;
};

MeshSearch::MeshSearch(MeshFolders folders)
    : _folders(std::move(folders)), _packages(std::make_unique<Packages>(_folders))
{}

MeshSearch::~MeshSearch() = default;

MeshFile MeshSearch::find(std::string const& uri) const
{
    MeshUri const parsed = parseMeshUri(uri);
    if (parsed.refusal != nullptr) {
        return refused(parsed.refusal);
    }
    if (!parsed.package.empty()) {
        return findInPackage(parsed.package, parsed.path);
    }
    if (fs::path(parsed.path).is_relative() && _folders.description.empty()) {
        return refused("It is relative to the folder of a description that is in none.");
    }
    return firstThatExists({fs::path(_folders.description) / parsed.path});
}

MeshFile MeshSearch::findInPackage(std::string const& name, std::string const& path) const
{
    std::vector<fs::path> candidates = _packages->named(name);
    if (candidates.empty()) {
        return {{}, "There is no package " + Model::quoted(name) + ".", _packages->places()};
    }
    for (fs::path& candidate : candidates) {
        candidate /= fs::path(path).relative_path();
    }
    return firstThatExists(candidates);
}

}  // namespace Varo::Model
