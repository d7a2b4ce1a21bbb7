#include "view/file_formats.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <set>

#include <pugixml.hpp>

namespace Tool {

namespace {

constexpr std::string_view blanks = " \t\r\f\v";

std::string_view trimmed(std::string_view text)
{
    std::size_t const begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// Takes the first word off a line.
std::string_view takeWord(std::string_view& line)
{
    line = trimmed(line);
    std::string_view const word = line.substr(0, line.find_first_of(blanks));
    line = trimmed(line.substr(word.size()));
    return word;
}

/// Calls `visit(word, rest)` for each line that says something, until it answers false. The answer is whether it never
/// did.
template <class Visit>
bool forEachLine(std::string_view text, Visit const& visit)
{
    while (!text.empty()) {
        std::size_t const end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        std::string_view const word = takeWord(line);
        if (!word.empty() && word.front() != '#' && !visit(word, line)) {
            return false;
        }
    }
    return true;
}

/// Whether the line begins with so many finite numbers.
bool areNumbers(std::string_view line, int count)
{
    for (; count > 0; --count) {
        std::string_view word = takeWord(line);
        word.remove_prefix(!word.empty() && word.front() == '+' ? 1 : 0);
        double value = 0.0;
        auto const [stop, error] = std::from_chars(word.data(), word.data() + word.size(), value);
        if (error != std::errc() || stop != word.data() + word.size() || !std::isfinite(value)) {
            return false;
        }
    }
    return true;
}

bool isOneOf(std::string_view word, std::set<std::string_view> const& words)
{
    return words.count(word) != 0;
}

bool isBinaryStl(std::string_view bytes)
{
    constexpr std::size_t header = 80;
    constexpr std::size_t triangle = 50;
    constexpr std::size_t numbers = 12;
    if (bytes.size() < header + 4 + triangle) {
        return false;
    }
    auto const byte = [&](std::size_t at) { return std::uint64_t{static_cast<unsigned char>(bytes[at])}; };
    std::uint64_t const count = byte(80) | byte(81) << 8U | byte(82) << 16U | byte(83) << 24U;
    if (bytes.size() != header + 4 + count * triangle) {
        return false;
    }
    for (std::size_t at = header + 4; at < bytes.size(); at += triangle) {
        std::array<float, numbers> values;
        std::memcpy(values.data(), bytes.data() + at, sizeof(values));
        if (!std::all_of(values.begin() + 3, values.end(), [](float value) { return std::isfinite(value); })) {
            return false;
        }
    }
    return true;
}

bool isTextStl(std::string_view bytes)
{
    static std::set<std::string_view> const others = {"solid", "endsolid", "facet", "endfacet", "outer", "endloop"};
    bool isFirst = true;
    bool hasVertex = false;
    return forEachLine(bytes,
                       [&](std::string_view word, std::string_view rest) {
                           bool const begins = !isFirst || word == "solid";
                           bool const isVertex = word == "vertex" && areNumbers(rest, 3);
                           isFirst = false;
                           hasVertex = hasVertex || isVertex;
                           return begins && (isVertex || isOneOf(word, others));
                       }) &&
           hasVertex;
}

bool isObj(std::string_view bytes)
{
    static std::set<std::string_view> const others = {"vn", "vt", "vp", "f",      "l",      "p",   "o",
                                                      "g",  "s",  "mg", "usemtl", "mtllib", "lod", "usemap"};
    bool hasVertex = false;
    bool hasFace = false;
    return bytes.find('\0') == std::string_view::npos &&
           forEachLine(bytes,
                       [&](std::string_view word, std::string_view rest) {
                           bool const isVertex = word == "v" && areNumbers(rest, 3);
                           hasVertex = hasVertex || isVertex;
                           hasFace = hasFace || word == "f";
                           return isVertex || isOneOf(word, others);
                       }) &&
           hasVertex && hasFace;
}

pugi::xml_document parsed(std::string_view bytes)
{
    pugi::xml_document document;
    if (!document.load_buffer(bytes.data(), bytes.size())) {
        document.reset();
    }
    return document;
}

bool isCollada(std::string_view bytes)
{
    std::size_t const first = bytes.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    if (first == std::string_view::npos || bytes[first] != '<') {
        return false;
    }
    pugi::xml_document const document = parsed(bytes);
    return std::strcmp(document.document_element().name(), "COLLADA") == 0 &&
           document.document_element().child("library_geometries").child("geometry");
}

void addTexts(std::string_view bytes, std::vector<std::string>& files)
{
    pugi::xml_document const document = parsed(bytes);
    for (pugi::xml_node const images : document.document_element().children("library_images")) {
        for (pugi::xml_node const image : images.children("image")) {
            pugi::xml_node const from = image.child("init_from");
            files.emplace_back(from.child("ref") ? from.child_value("ref") : from.child_value());
        }
    }
}

/// A map may have options before its file, whose name may hold blanks where it has none.
std::string fileOfMap(std::string_view rest)
{
    if (!rest.empty() && rest.front() == '-') {
        rest = rest.substr(rest.find_last_of(blanks) + 1);
    }
    return std::string(rest);
}

}  // namespace

std::string meshFormatOf(std::string_view bytes)
{
    return isBinaryStl(bytes) || isTextStl(bytes) ? "stl" : isCollada(bytes) ? "dae" : isObj(bytes) ? "obj" : "";
}

bool isMaterialLibrary(std::string_view bytes)
{
    static std::set<std::string_view> const words = {
        "newmtl", "Ka",    "Kd",     "Ks",       "Ke",     "Tf",       "Ns",       "Ni",   "d",
        "Tr",     "illum", "map_Ka", "map_Kd",   "map_Ks", "map_Ke",   "disp",     "bump", "norm",
        "decal",  "refl",  "map_Ns", "map_bump", "map_d",  "map_Bump", "sharpness"};
    bool hasMaterial = false;
    return bytes.find('\0') == std::string_view::npos &&
           forEachLine(bytes,
                       [&](std::string_view word, std::string_view) {
                           hasMaterial = hasMaterial || word == "newmtl";
                           return isOneOf(word, words);
                       }) &&
           hasMaterial;
}

std::string imageTypeOf(std::string_view bytes)
{
    auto const startsWith = [&](std::string_view start) { return bytes.substr(0, start.size()) == start; };
    return startsWith("\x89PNG\r\n\x1A\n") ? "image/png" : startsWith("\xFF\xD8\xFF") ? "image/jpeg" : "";
}

std::vector<std::string> filesNamedBy(std::string const& meshFormat, std::string_view bytes)
{
    std::vector<std::string> files;
    if (meshFormat == "dae") {
        addTexts(bytes, files);
    } else if (meshFormat == "obj") {
        forEachLine(bytes, [&](std::string_view word, std::string_view rest) {
            if (word == "mtllib") {
                files.emplace_back(rest);
            }
            return true;
        });
    }
    return files;
}

std::vector<std::string> imagesNamedBy(std::string_view materialLibrary)
{
    std::vector<std::string> files;
    forEachLine(materialLibrary, [&](std::string_view word, std::string_view rest) {
        if (word.substr(0, 4) == "map_" || word == "bump" || word == "norm" || word == "disp") {
            files.push_back(fileOfMap(rest));
        }
        return true;
    });
    return files;
}

}  // namespace Tool
