#ifndef TOOL_VIEW_EMBEDDING_HPP
#define TOOL_VIEW_EMBEDDING_HPP

#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "support/json.hpp"
#include "varo/model/mesh_search.hpp"

namespace Tool {

using FindFile = std::function<Varo::Model::MeshFile(std::string const& uri)>;

/// What a page may carry. A page is mailed, and the robot that it shows may come from anybody: no other file of who
/// writes the page gets into it.
struct EmbeddingRules {
    std::vector<std::filesystem::path> folders;  ///< of the description and of packages: what is in them may be carried
    bool allowsOutside = false;  ///< whether files that are neither there nor in a package may be, too
    std::size_t maximumBytes = 0;  ///< of all files together
};

/// The meshes and images that a robot names, as data of the page.
class Embedding {
public:
    /// `uris` are those of meshes and images. They say in which packages files may be.
    Embedding(FindFile find, EmbeddingRules rules, std::vector<std::string> const& uris);

    /// {"format", "data", "files"} or {"reason"}.
    Json mesh(std::string const& uri);
    /// {"type", "data"} or {"reason"}.
    Json image(std::string const& uri);

private:
    std::string read(Varo::Model::MeshFile const& file, std::string& bytes) const;
    bool isAllowed(std::filesystem::path const& file) const;
    bool fits(std::size_t bytes);
    std::string tooMuch() const;
    Json filesOf(std::string const& format, std::string const& bytes, std::filesystem::path const& folder);
    std::string addFile(Json& files, std::string const& name, std::filesystem::path const& folder);

    FindFile _find;
    EmbeddingRules _rules;
    std::set<std::filesystem::path> _folders;  // real paths of those of the rules, and of packages that were found
    std::size_t _used = 0;
};

}  // namespace Tool

#endif
