#include "posture/posture_library.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "varo/model/name_hash.hpp"
#include "varo/model/robot.hpp"

namespace posture {

namespace {

// The name of a library is a data URI (RFC 2397): behind the prefix stands the number of angle names, with the pairs of
// places that have one name, then each posture as its percent-encoded name and the values that it states, each behind
// its place; those without a place are surplus:
//     4,0=3;StandInit=0:0.5;Rest=2:-1,:7
// So it grows with what is stated, however many names there are.
constexpr std::string_view prefix = "data:application/vnd.varo.postures,";
constexpr float unset = std::numeric_limits<float>::quiet_NaN();
/// More names than any text can list are no library's.
constexpr std::size_t mostNames = std::size_t{1} << 24U;

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

/// The first place of each name.
using Places = std::unordered_map<std::string_view, std::size_t, Varo::Model::NameHash>;

void appendPosture(std::string& out, Varo::Model::PostureConfig const& posture, Places const& places)
{
    out += ';';
    appendEncoded(out, posture.name);
    char separator = '=';
    for (Varo::Model::PostureAngle const& angle : posture.angles) {
        out += separator;
        separator = ',';
        if (auto const found = places.find(angle.name); found != places.end()) {
            appendNumber(out, found->second);
        }
        out += ':';
        appendNumber(out, angle.value);
    }
}

/// "0=3": what stands before the separator, and behind it.
bool parsePair(std::string_view text, std::size_t& first, std::size_t& second)
{
    return parseNumber(takePiece(text, '='), first) && parseNumber(text, second);
}

}  // namespace

std::string getRobotPostureLibraryName(Varo::Model::Robot const& robot)
{
    if (robot.postures().empty()) {
        return {};
    }
    auto const records = Varo::Model::recordsOf(robot);
    std::vector<std::string const*> const names = Varo::Model::angleNames(*records);
    std::string library(prefix);
    appendNumber(library, names.size());
    Places places;
    for (std::size_t i = 0; i < names.size(); ++i) {
        auto const [first, isNew] = places.try_emplace(*names[i], i);
        if (!isNew) {
            library += ',';
            appendNumber(library, first->second);
            library += '=';
            appendNumber(library, i);
        }
    }
    for (Varo::Model::PostureConfig const& posture : robot.postures()) {
        appendPosture(library, posture, places);
    }
    return library;
}

bool PostureLibrary::loadLibraryFromName(std::string const& name)
{
    *this = PostureLibrary();
    std::string_view text = name;
    if (text.substr(0, prefix.size()) != prefix) {
        return false;
    }
    text.remove_prefix(prefix.size());
    PostureLibrary library;
    if (!library.readNames(takePiece(text, ';')) || text.empty()) {
        return false;
    }
    while (!text.empty()) {
        std::string_view piece = takePiece(text, ';');
        Named& posture = library._postures.emplace_back();
        if (!decode(takePiece(piece, '='), posture.name) || !library.readValues(piece, posture)) {
            return false;
        }
    }
    *this = std::move(library);
    return true;
}

/// "4,0=3": how many names there are, and the later places of those that stand at several.
bool PostureLibrary::readNames(std::string_view text)
{
    if (!parseNumber(takePiece(text, ','), _angleCount) || _angleCount > mostNames) {
        return false;
    }
    while (!text.empty()) {
        auto& [first, later] = _repeated.emplace_back();
        if (!parsePair(takePiece(text, ','), first, later) || first >= _angleCount || later >= _angleCount) {
            return false;
        }
    }
    return true;
}

/// "2:-1,:7"
bool PostureLibrary::readValues(std::string_view text, Named& posture) const
{
    while (!text.empty()) {
        std::string_view piece = takePiece(text, ',');
        std::string_view const place = takePiece(piece, ':');
        Stated stated = {_angleCount, unset};
        if ((!place.empty() && (!parseNumber(place, stated.place) || stated.place >= _angleCount)) ||
            !parseNumber(piece, stated.value)) {
            return false;
        }
        posture.stated.push_back(stated);
    }
    return true;
}

/// With NaN where the description says nothing.
std::vector<float> PostureLibrary::layOut(Named const& posture) const
{
    std::vector<float> values(_angleCount, unset);
    for (auto const& [place, value] : posture.stated) {
        if (place == _angleCount) {
            values.push_back(value);
        } else {
            values[place] = value;
        }
    }
    for (auto const& [first, later] : _repeated) {
        values[later] = values[first];
    }
    return values;
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
    std::vector<float> values = layOut(known ? _postures[static_cast<std::size_t>(id)] : Named());
    if (completed) {
        for (float& value : values) {
            value = std::isnan(value) ? 0.0F : value;
        }
    }
    posture = Posture(std::move(values));
    return known;
}

}  // namespace posture
