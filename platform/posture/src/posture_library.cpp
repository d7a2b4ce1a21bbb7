#include "posture/posture_library.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "varo/model/robot.hpp"

namespace posture {

namespace {

// The name of a library is a data URI (RFC 2397): behind the prefix stands the number of angle names, then each
// posture as its percent-encoded name and its values, which are empty where the posture says nothing:
//     2;StandInit=0.5,;Rest=,-1,7
constexpr std::string_view prefix = "data:application/vnd.varo.postures,";
constexpr float unset = std::numeric_limits<float>::quiet_NaN();

bool isUnreserved(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
           c == '_' || c == '~';
}

void appendEncoded(std::string& out, std::string const& text)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    for (char const c : text) {
        if (isUnreserved(c)) {
            out += c;
        } else {
            auto const byte = static_cast<unsigned char>(c);
            out += {'%', digits[byte >> 4U], digits[byte & 15U]};
        }
    }
}

bool decode(std::string_view text, std::string& out)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            out += text[i];
            continue;
        }
        unsigned byte = 0;
        if (text.size() - i < 3 || std::from_chars(&text[i + 1], &text[i + 1] + 2, byte, 16).ptr != &text[i + 1] + 2) {
            return false;
        }
        out += static_cast<char>(byte);
        i += 2;
    }
    return true;
}

template <class Number>
void appendNumber(std::string& out, Number number)
{
    char digits[32];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

template <class Number>
bool parseNumber(std::string_view text, Number& number)
{
    char const* const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end;
}

/// Cuts off and returns what stands before the separator, or everything.
std::string_view takePiece(std::string_view& text, char separator)
{
    std::size_t const length = std::min(text.find(separator), text.size());
    std::string_view const piece = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return piece;
}

std::vector<float> layOut(Varo::Model::PostureConfig const& posture, std::size_t nameCount,
                          std::unordered_map<std::string_view, std::vector<std::size_t>> const& places)
{
    std::vector<float> values(nameCount, unset);
    for (Varo::Model::PostureAngle const& angle : posture.angles) {
        auto const found = places.find(angle.name);
        if (found == places.end()) {
            values.push_back(angle.value);
            continue;
        }
        for (std::size_t const place : found->second) {
            values[place] = angle.value;
        }
    }
    return values;
}

void appendPosture(std::string& out, std::string const& name, std::vector<float> const& values)
{
    out += ';';
    appendEncoded(out, name);
    char separator = '=';
    for (float const value : values) {
        out += separator;
        separator = ',';
        if (!std::isnan(value)) {
            appendNumber(out, value);
        }
    }
}

bool parseValues(std::string_view text, std::vector<float>& values)
{
    while (true) {
        bool const isLast = text.find(',') == std::string_view::npos;
        std::string_view const piece = takePiece(text, ',');
        values.push_back(unset);
        if (!piece.empty() && !parseNumber(piece, values.back())) {
            return false;
        }
        if (isLast) {
            return true;
        }
    }
}

}  // namespace

std::string getRobotPostureLibraryName(Varo::Model::Robot const& robot)
{
    if (robot.postures().empty()) {
        return {};
    }
    auto const records = Varo::Model::recordsOf(robot);
    std::vector<std::string const*> const names = Varo::Model::angleNames(*records);
    std::unordered_map<std::string_view, std::vector<std::size_t>> places;
    for (std::size_t i = 0; i < names.size(); ++i) {
        places[*names[i]].push_back(i);
    }

    std::string library(prefix);
    appendNumber(library, names.size());
    for (Varo::Model::PostureConfig const& posture : robot.postures()) {
        appendPosture(library, posture.name, layOut(posture, names.size(), places));
    }
    return library;
}

bool PostureLibrary::loadLibraryFromName(std::string const& name)
{
    _postures.clear();
    _angleCount = 0;
    std::string_view text = name;
    if (text.substr(0, prefix.size()) != prefix) {
        return false;
    }
    text.remove_prefix(prefix.size());
    std::size_t angleCount = 0;
    std::vector<Named> postures;
    if (!parseNumber(takePiece(text, ';'), angleCount)) {
        return false;
    }
    while (!text.empty()) {
        std::string_view piece = takePiece(text, ';');
        Named& posture = postures.emplace_back();
        bool const hasValues = piece.find('=') != std::string_view::npos;
        if (!decode(takePiece(piece, '='), posture.name) || (hasValues && !parseValues(piece, posture.values)) ||
            posture.values.size() < angleCount) {
            return false;
        }
    }
    if (postures.empty()) {
        return false;
    }
    _postures = std::move(postures);
    _angleCount = angleCount;
    return true;
}

int PostureLibrary::getIdFromName(std::string const& name) const
{
    for (std::size_t i = 0; i < _postures.size(); ++i) {
        if (_postures[i].name == name) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool PostureLibrary::getPostureFromId(int id, Posture& posture, bool completed) const
{
    bool const known = id >= 0 && static_cast<std::size_t>(id) < _postures.size();
    std::vector<float> values =
        known ? _postures[static_cast<std::size_t>(id)].values : std::vector<float>(_angleCount, unset);
    if (completed) {
        for (float& value : values) {
            value = std::isnan(value) ? 0.0F : value;
        }
    }
    posture = Posture(std::move(values));
    return known;
}

}  // namespace posture
