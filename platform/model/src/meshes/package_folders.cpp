#include "meshes/package_folders.hpp"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <memory>
#include <new>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include <dirent.h>

#include "schema/values.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/text_file.hpp"
#include "xml/parse.hpp"

namespace Varo::Model {

namespace {

namespace fs = std::filesystem;

/// Longer ones are passed over: who writes them has something else in mind.
constexpr std::uintmax_t maximumPackageXml = 1024 * 1024;

/// What else is in the way of a folder makes no difference.
void throwIfNoMemory(std::error_code const& error)
{
    if (error == std::errc::not_enough_memory) {
        throw std::bad_alloc();
    }
}

/// The name in the folder's package.xml; empty without one.
std::string statedNameOf(fs::path const& folder)
{
    fs::path const file = folder / "package.xml";
    std::error_code error;
    // A pipe of that name would never end.
    if (!fs::is_regular_file(file, error) || fs::file_size(file, error) > maximumPackageXml || error) {
        return {};
    }
    SourceText const source(readTextFile(file.string()).text);
    Diagnostics unseen(nullptr, 0);
    XmlDocument document;
    if (!parseXml(source, document, unseen) || document.root().name() != "package") {
        return {};
    }
    return std::string(Schema::trimmed(document.root().child("name").text()));
}

/// What is walked through breadth first, each folder once however many links lead to it.
class PathWalk {
public:
    PathWalk(int maximumDepth, int maximumEntries) : _maximumDepth(maximumDepth), _entriesLeft(maximumEntries) {}

    void walk(fs::path const& start)
    {
        enter(start, 0);
        while (!_waiting.empty()) {
            auto const [folder, depth] = std::move(_waiting.front());
            _waiting.pop_front();
            if (!addPackage(folder) && depth < _maximumDepth) {
                for (fs::path const& inner : foldersIn(folder)) {
                    enter(inner, depth + 1);
                }
            }
        }
    }

    FoldersByName takeFound() { return std::move(_found); }

private:
    void enter(fs::path const& folder, int depth)
    {
        std::error_code error;
        fs::path const canonical = fs::canonical(folder, error);
        throwIfNoMemory(error);
        if (!error && _seen.insert(canonical.native()).second) {
            _waiting.emplace_back(folder, depth);
        }
    }

    /// Under the folder's own name and the one that it states. Says whether it states one.
    bool addPackage(fs::path const& folder)
    {
        std::string const stated = statedNameOf(folder);
        std::string const own = folder.filename().string();
        _found.emplace(own, folder);
        if (!stated.empty() && stated != own) {
            _found.emplace(stated, folder);
        }
        return !stated.empty();
    }

    /// In order of name, hidden ones left out.
    std::vector<fs::path> foldersIn(fs::path const& folder)
    {
        std::vector<fs::path> folders;
        // Not std::filesystem::directory_iterator, which ends the program when there is not enough memory.
        std::unique_ptr<DIR, int (*)(DIR*)> const entries(::opendir(folder.c_str()), ::closedir);
        if (entries == nullptr) {
            throwIfNoMemory({errno, std::generic_category()});
            return folders;
        }
        for (dirent const* entry = nullptr; _entriesLeft > 0 && (entry = ::readdir(entries.get())) != nullptr;) {
            std::string_view const name = entry->d_name;
            if (name == "." || name == "..") {
                continue;
            }
            --_entriesLeft;
            std::error_code unreadable;
            if (name.front() != '.' && fs::is_directory(folder / name, unreadable)) {
                folders.push_back(folder / name);
            }
        }
        std::sort(folders.begin(), folders.end());
        return folders;
    }

    int _maximumDepth;
    int _entriesLeft;
    std::deque<std::pair<fs::path, int>> _waiting;
    std::set<std::string> _seen;
    FoldersByName _found;
};

/// Absolute, without "." and ".." and without a slash at its end.
fs::path plainPath(fs::path const& folder)
{
    std::error_code error;
    fs::path const absolute = fs::absolute(folder, error).lexically_normal();
    throwIfNoMemory(error);
    return absolute.has_filename() ? absolute : absolute.parent_path();
}

}  // namespace

std::vector<PackageFolder> foldersAbove(fs::path const& folder)
{
    std::vector<PackageFolder> folders;
    if (folder.empty()) {
        return folders;
    }
    for (fs::path path = plainPath(folder);; path = path.parent_path()) {
        folders.push_back({path, statedNameOf(path)});
        if (!path.has_relative_path()) {
            return folders;
        }
    }
}

FoldersByName foldersOnPath(std::vector<std::string> const& packagePath, int maximumDepth, int maximumEntries)
{
    PathWalk walk(maximumDepth, maximumEntries);
    for (std::string const& folder : packagePath) {
        if (!folder.empty()) {
            walk.walk(plainPath(folder));
        }
    }
    return walk.takeFound();
}

}  // namespace Varo::Model
