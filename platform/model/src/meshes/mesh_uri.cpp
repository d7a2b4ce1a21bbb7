#include "meshes/mesh_uri.hpp"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "xml/utf8.hpp"

namespace Varo::Model {

namespace {

/// No longer path can be opened.
constexpr std::size_t maximumLength = 4096;

MeshUri refused(char const* reason)
{
    return {{}, {}, reason};
}

/// Escapes that are none stay as they are: plain paths may contain a percent sign.
std::string unescaped(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        int code = 0;
        char const* const digits = text.data() + i + 1;
        bool const isEscape = text[i] == '%' && i + 2 < text.size() &&
                              std::isxdigit(static_cast<unsigned char>(*digits)) &&
                              std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2;
        plain += isEscape ? static_cast<char>(code) : text[i];
        i += isEscape ? 2 : 0;
    }
    return plain;
}

/// Whether all of it can be shown to people: no control characters, nothing but UTF-8.
bool isPrintable(std::string_view text)
{
    while (!text.empty()) {
        Utf8Character const character = decodeUtf8(text);
        if (character.length == 0 || character.codePoint < 0x20 || character.codePoint == 0x7F) {
            return false;
        }
        text.remove_prefix(character.length);
    }
    return true;
}

/// The scheme in lower case, taken off the URI together with what separates it; empty for a path.
std::string takeScheme(std::string_view& uri)
{
    std::size_t const end = uri.find(':');
    std::string scheme(uri.substr(0, end == uri.npos ? 0 : end));
    for (char& c : scheme) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    bool const hasAuthority = end != uri.npos && uri.substr(end, 3) == "://";
    bool const isName = std::all_of(scheme.begin(), scheme.end(), [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '+' || c == '-' || c == '.';
    });
    if (scheme.empty() || !isName || (!hasAuthority && scheme != "file")) {
        return {};
    }
    uri.remove_prefix(end + (hasAuthority ? 3 : 1));
    return scheme;
}

/// Whether the path, read from left to right, ever stands above the folder that it begins in.
bool leavesItsFolder(std::string_view path)
{
    int depth = 0;
    while (!path.empty() && depth >= 0) {
        std::size_t const end = std::min(path.find('/'), path.size());
        std::string_view const step = path.substr(0, end);
        depth += step == ".." ? -1 : step.empty() || step == "." ? 0 : 1;
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return depth < 0;
}

MeshUri packageUri(std::string const& text)
{
    std::size_t const slash = text.find('/');
    std::string const name = text.substr(0, slash);
    if (name.empty() || name == "." || name == ".." || slash == text.npos || slash + 1 == text.size()) {
        return refused("It does not name a package and a file in it.");
    }
    std::string const path = text.substr(slash + 1);
    if (leavesItsFolder(path)) {
        return refused("It leads out of its package.");
    }
    return {name, path};
}

MeshUri fileUri(std::string_view text)
{
    constexpr std::string_view thisMachine = "localhost";
    if (text.substr(0, thisMachine.size()) == thisMachine) {
        text.remove_prefix(thisMachine.size());
    }
    if (text.substr(0, 1) != "/") {
        return refused("It names another machine; the path of a file:// URI begins with a third slash.");
    }
    return {{}, std::string(text)};
}

}  // namespace

MeshUri parseMeshUri(std::string_view uri)
{
    if (uri.empty()) {
        return refused("It is empty.");
    }
    if (uri.size() > maximumLength) {
        return refused("It is longer than any path.");
    }
    std::string const scheme = takeScheme(uri);
    std::string const text = unescaped(uri);
    if (!isPrintable(text)) {
        return refused("It holds control characters or bytes that are no UTF-8.");
    }
    if (scheme.empty()) {
        return {{}, text};
    }
    if (scheme == "file") {
        return fileUri(text);
    }
    if (scheme == "package" || scheme == "model") {
        return packageUri(text);
    }
    return refused("Only files of this machine are looked for.");
}

}  // namespace Varo::Model
