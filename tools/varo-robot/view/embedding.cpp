#include "view/embedding.hpp"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>

#include "view/base64.hpp"
#include "view/file_formats.hpp"

namespace Tool {

namespace {

namespace fs = std::filesystem;
using Varo::Model::MeshFile;

Json because(std::string const& reason)
{
    return {{"reason", reason}};
}

/// Empty for what is not there.
fs::path realPath(fs::path const& path)
{
    std::error_code error;
    fs::path const real = fs::canonical(path, error);
    return error ? fs::path() : real;
}

bool isInside(fs::path const& file, fs::path const& folder)
{
    auto const [restOfFolder, restOfFile] = std::mismatch(folder.begin(), folder.end(), file.begin(), file.end());
    return restOfFolder == folder.end() && restOfFile != file.end();
}

/// A folder that only bears the name of a package may be anybody's.
bool isPackage(fs::path const& folder)
{
    std::error_code error;
    return fs::exists(folder / "package.xml", error) || fs::exists(folder / "model.config", error);
}

/// The folder of the package that the file was found in; empty for URIs that name no package.
fs::path packageOf(std::string const& uri, fs::path const& file)
{
    std::size_t const scheme = uri.find("://");
    if (scheme == std::string::npos || uri.compare(0, scheme, "file") == 0) {
        return {};
    }
    std::size_t const path = uri.find('/', scheme + 3);
    if (path == std::string::npos) {
        return {};
    }
    fs::path folder = file;
    for (fs::path const& step : fs::path(uri.substr(path + 1))) {
        if (step == ".." || step == ".") {
            return {};  // as many steps up as down may lead anywhere
        }
        folder = folder.parent_path();
    }
    return isPackage(folder) ? realPath(folder) : fs::path();
}

}  // namespace

Embedding::Embedding(FindFile find, EmbeddingRules rules, std::vector<std::string> const& uris)
    : _find(std::move(find)), _rules(std::move(rules))
{
    for (fs::path const& folder : _rules.folders) {
        _folders.insert(realPath(folder));
    }
    for (std::string const& uri : uris) {
        MeshFile const file = _find(uri);
        if (!file.path.empty()) {
            _folders.insert(packageOf(uri, file.path));
        }
    }
    _folders.erase(fs::path());
}

Json Embedding::mesh(std::string const& uri)
{
    MeshFile const file = _find(uri);
    std::string bytes;
    if (std::string const reason = read(file, bytes); !reason.empty()) {
        return because(reason);
    }
    std::string const format = meshFormatOf(bytes);
    if (format.empty()) {
        return because("It is no mesh in STL, OBJ or COLLADA.");
    }
    if (!fits(bytes.size())) {
        return because(tooMuch());
    }
    return {
        {"format", format},
        {"data", base64(bytes)},
        {"files", filesOf(format, bytes, fs::path(file.path).parent_path())},
    };
}

Json Embedding::image(std::string const& uri)
{
    std::string bytes;
    if (std::string const reason = read(_find(uri), bytes); !reason.empty()) {
        return because(reason);
    }
    std::string const type = imageTypeOf(bytes);
    if (type.empty()) {
        return because("It is no image in PNG or JPEG.");
    }
    if (!fits(bytes.size())) {
        return because(tooMuch());
    }
    return {{"type", type}, {"data", base64(bytes)}};
}

/// The answer is the reason why nothing came of it; empty when the bytes are there.
std::string Embedding::read(MeshFile const& file, std::string& bytes) const
{
    if (file.path.empty()) {
        return file.reason;
    }
    fs::path const path = realPath(file.path);
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        return "It is no file.";
    }
    if (!isAllowed(path)) {
        return "It is neither in the folder of the description nor in a package; --allow-outside takes it.";
    }
    std::uintmax_t const size = fs::file_size(path, error);
    if (error || size > _rules.maximumBytes) {
        return tooMuch();
    }
    bytes.resize(size);
    std::ifstream stream(path, std::ios::binary);
    bool const isWhole = static_cast<bool>(stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())));
    return isWhole ? "" : "It cannot be read.";
}

bool Embedding::isAllowed(fs::path const& file) const
{
    auto const hasFile = [&](fs::path const& folder) { return isInside(file, folder); };
    return _rules.allowsOutside || std::any_of(_folders.begin(), _folders.end(), hasFile);
}

bool Embedding::fits(std::size_t bytes)
{
    bool const does = bytes <= _rules.maximumBytes - _used;
    _used += does ? bytes : 0;
    return does;
}

std::string Embedding::tooMuch() const
{
    constexpr std::size_t megabyte = 1'000'000;
    return "With it, meshes and images would take more than " + std::to_string(_rules.maximumBytes / megabyte) +
           " MB; --mesh-limit sets how much they may.";
}

Json Embedding::filesOf(std::string const& format, std::string const& bytes, fs::path const& folder)
{
    Json files = Json::object();
    for (std::string const& name : filesNamedBy(format, bytes)) {
        std::string const library = addFile(files, name, folder);
        for (std::string const& image : imagesNamedBy(library)) {
            addFile(files, image, folder);
        }
    }
    return files;
}

/// What a mesh names and cannot be carried is left out: the mesh shows without it. The answer is the text of a material
/// library, and empty for all else.
std::string Embedding::addFile(Json& files, std::string const& name, fs::path const& folder)
{
    std::string bytes;
    if (name.empty() || files.contains(name) || !read({(folder / name).string(), "", {}}, bytes).empty()) {
        return {};
    }
    bool const isLibrary = isMaterialLibrary(bytes);
    std::string const type = isLibrary ? "model/mtl" : imageTypeOf(bytes);
    if (type.empty() || !fits(bytes.size())) {
        return {};
    }
    files[name] = {{"type", type}, {"data", base64(bytes)}};
    return isLibrary ? bytes : std::string();
}

}  // namespace Tool
