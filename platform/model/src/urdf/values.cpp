#include "urdf/values.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "urdf/numbers.hpp"

namespace Varo::Model::Urdf {

namespace {

/// Takes as many numbers as there are, of which all have to be ones; true when they are as many as there should be.
template <std::size_t count>
bool parseList(std::string_view text, std::array<double, count> values, std::array<double, count>& result)
{
    std::size_t found = 0;
    if (!parseNumbers(text, values.data(), count, found)) {
        return false;
    }
    result = values;
    return found == count;
}

template <std::size_t count>
std::string printList(std::array<double, count> const& values)
{
    std::string text;
    for (double const value : values) {
        text += (text.empty() ? "" : " ") + Real::print(value);
    }
    return text;
}

}  // namespace

bool Name::parse(std::string_view text, std::string_view& value)
{
    bool const isName = !text.empty() && text.size() <= longestName;
    value = isName ? text : std::string_view();
    return isName;
}

bool Real::parse(std::string_view text, double& value)
{
    double number = 0.0;
    bool const isUsable = parseNumber(text, number) && isInBounds(number);
    value = isUsable ? number : value;
    return isUsable;
}

bool OptionalReal::parse(std::string_view text, std::optional<double>& value)
{
    double number = 0.0;
    bool const isUsable = Real::parse(text, number);
    value = isUsable ? number : value;
    return isUsable;
}

template <int side>
bool Bound<side>::parse(std::string_view text, double& value)
{
    double number = 0.0;
    bool const isUsable = parseNumber(text, number) && side * number >= -largestNumber;
    bool const isEndless = side * number > largestNumber;
    value = !isUsable ? value : isEndless ? side * std::numeric_limits<double>::infinity() : number;
    return isUsable;
}

template <int side>
std::string Bound<side>::print(double value)
{
    return std::isinf(value) ? value > 0.0 ? "1e+308" : "-1e+308" : Real::print(value);
}

template struct Bound<-1>;
template struct Bound<1>;

bool Length::parse(std::string_view text, double& value)
{
    bool const isNumber = Real::parse(text, value);
    bool const isLength = value >= 0.0;
    value = std::abs(value);
    return isNumber && isLength;
}

bool Reals3::parse(std::string_view text, Vector& value)
{
    return parseList(text, {}, value);
}

std::string Reals3::print(Vector const& value)
{
    return printList(value);
}

bool Lengths3::parse(std::string_view text, Vector& value)
{
    bool const isList = Reals3::parse(text, value);
    bool const areLengths = *std::min_element(value.begin(), value.end()) >= 0.0;
    for (double& length : value) {
        length = std::abs(length);
    }
    return isList && areLengths;
}

bool Scale::parse(std::string_view text, Vector& value)
{
    double factor = 0.0;
    if (Real::parse(text, factor)) {
        value = {factor, factor, factor};
        return true;
    }
    return Reals3::parse(text, value);
}

bool Channels::parse(std::string_view text, Rgba& value)
{
    bool const isList = parseList(text, opaqueBlack, value);
    Rgba const stated = value;
    for (double& channel : value) {
        channel = std::clamp(channel, 0.0, 1.0);
    }
    return isList && value == stated;
}

std::string Channels::print(Rgba const& value)
{
    return printList(value);
}

}  // namespace Varo::Model::Urdf
