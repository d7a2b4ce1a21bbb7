#include "urdf/numbers.hpp"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

#include "decimal_size.hpp"
#include "short_decimal.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/node_offset.hpp"
#include "xml/words.hpp"

namespace Varo::Model::Urdf {

namespace {

/// Cuts the first word off the text.
std::string_view takeWord(std::string_view& text)
{
    std::size_t const begin = endOf(text, 0, isXmlSpace);
    std::size_t const end = endOf(text, begin, isOfWord);
    std::string_view const word = text.substr(begin, end - begin);
    text.remove_prefix(end);
    return word;
}

/// What a well-formed number stands for that has no place in double precision.
double outOfRange(std::string_view word)
{
    double const sign = word.front() == '-' ? -1.0 : 1.0;
    return isBelowOne(word) ? 0.0 : sign * std::numeric_limits<double>::infinity();
}

bool parseWord(std::string_view word, double& value)
{
    word = withoutPlus(word);
    double number = 0.0;
    if (!word.empty() && parseShortDecimal(word, number) == word.size()) {
        value = number;
        return true;
    }
    auto const [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error == std::errc::invalid_argument || end != word.data() + word.size() || std::isnan(number)) {
        return false;
    }
    value = error == std::errc::result_out_of_range ? outOfRange(word) : number;
    return true;
}

void reportNotANumber(TextOffset place, std::string_view text, Diagnostics& diagnostics)
{
    diagnostics.report(place, codes::notANumber, quoted(text) + " is not a number that can be used here.",
                       "Write a finite decimal number, such as 0.5 or -2e-3.");
}

}  // namespace

bool parseNumber(std::string_view text, double& value)
{
    std::string_view const word = takeWord(text);
    return parseWord(word, value) && takeWord(text).empty();
}

double readNumber(pugi::xml_node node, char const* attribute, double fallback, Diagnostics& diagnostics)
{
    pugi::xml_attribute const found = node.attribute(attribute);
    if (!found) {
        return fallback;
    }
    double value = 0.0;
    if (!parseNumber(found.value(), value) || std::abs(value) > largestNumber) {
        reportNotANumber(at(node, found), found.value(), diagnostics);
        return fallback;
    }
    return value;
}

double readLimit(pugi::xml_node node, char const* attribute, int sign, Diagnostics& diagnostics)
{
    double value = 0.0;
    bool const unlimited = parseNumber(node.attribute(attribute).value(), value) && sign * value > largestNumber;
    return unlimited ? sign * std::numeric_limits<double>::infinity() : readNumber(node, attribute, 0.0, diagnostics);
}

bool readNumbers(pugi::xml_node node, pugi::xml_attribute attribute, double* values, std::size_t count,
                 Diagnostics& diagnostics)
{
    std::string_view text = attribute ? attribute.value() : node.child_value();
    std::size_t found = 0;
    for (std::string_view word = takeWord(text); !word.empty(); word = takeWord(text)) {
        double value = 0.0;
        if (!parseWord(word, value) || std::abs(value) > largestNumber) {
            reportNotANumber(at(node, attribute), word, diagnostics);
            return false;
        }
        if (found < count) {
            values[found] = value;
        }
        ++found;
    }
    if (found != count) {
        diagnostics.report(at(node, attribute), codes::wrongCount,
                           "The list has " + std::to_string(found) + " numbers where " + std::to_string(count) +
                               " belong; missing ones are read as 0, surplus ones are ignored.");
    }
    return true;
}

Vector readVector(pugi::xml_node node, char const* attribute, Vector const& fallback, Diagnostics& diagnostics)
{
    pugi::xml_attribute const found = node.attribute(attribute);
    if (!found) {
        return fallback;
    }
    Vector values = {0.0, 0.0, 0.0};
    return readNumbers(node, found, values.data(), values.size(), diagnostics) ? values : fallback;
}

Pose readOrigin(pugi::xml_node origin, Diagnostics& diagnostics)
{
    return poseFrom(readVector(origin, "xyz", {}, diagnostics), readVector(origin, "rpy", {}, diagnostics));
}

}  // namespace Varo::Model::Urdf
