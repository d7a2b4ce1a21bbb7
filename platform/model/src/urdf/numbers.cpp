#include "urdf/numbers.hpp"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

#include "decimal_size.hpp"
#include "short_decimal.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/document.hpp"
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

}  // namespace

bool parseNumber(std::string_view text, double& value)
{
    double number = 0.0;
    if (!text.empty() && parseShortDecimal(text, number) == text.size()) {
        value = number;
        return true;
    }
    std::string_view const word = takeWord(text);
    return parseWord(word, value) && takeWord(text).empty();
}

void reportNotANumber(TextOffset place, std::string_view text, Diagnostics& diagnostics)
{
    diagnostics.report(place, codes::notANumber, quoted(text) + " is not a number that can be used here.",
                       "Write a finite decimal number, such as 0.5 or -2e-3.");
}

bool isInBounds(double value)
{
    return std::abs(value) <= largestNumber;
}

bool parseNumbers(std::string_view text, double* values, std::size_t count, std::size_t& found)
{
    text.remove_prefix(endOf(text, 0, isXmlSpace));
    for (found = 0; !text.empty(); ++found) {
        double value = 0.0;
        std::size_t length = parseShortDecimal(text, value);
        if (length == 0 || (length < text.size() && !isXmlSpace(text[length]))) {
            length = endOf(text, 0, isOfWord);
            if (!parseWord(text.substr(0, length), value)) {
                return false;
            }
        }
        if (!isInBounds(value)) {
            return false;
        }
        if (found < count) {
            values[found] = value;
        }
        text.remove_prefix(endOf(text, length, isXmlSpace));
    }
    return true;
}

void reportWrongList(TextOffset place, std::string_view text, std::size_t count, std::string_view missing,
                     Diagnostics& diagnostics)
{
    std::size_t found = 0;
    for (std::string_view word = takeWord(text); !word.empty(); word = takeWord(text)) {
        double value = 0.0;
        if (!parseWord(word, value) || !isInBounds(value)) {
            reportNotANumber(place, word, diagnostics);
            return;
        }
        ++found;
    }
    if (found != count) {
        diagnostics.report(place, codes::wrongCount,
                           "The list has " + std::to_string(found) + " numbers where " + std::to_string(count) +
                               " belong; " + std::string(missing) + ", surplus ones are ignored.");
    }
}

void readNumbers(XmlNode node, XmlAttribute attribute, double* values, std::size_t count, Diagnostics& diagnostics)
{
    std::string_view const text = attribute ? attribute.value() : node.text();
    std::size_t found = 0;
    if (!parseNumbers(text, values, count, found) || found != count) {
        reportWrongList(at(node, attribute), text, count, missingIsZero, diagnostics);
    }
}

Pose readOrigin(XmlNode origin, Diagnostics& diagnostics)
{
    auto const vector = [&](char const* name) {
        Vector values = {0.0, 0.0, 0.0};
        if (XmlAttribute const attribute = origin.attribute(name)) {
            readNumbers(origin, attribute, values.data(), values.size(), diagnostics);
        }
        return values;
    };
    return poseFrom(vector("xyz"), vector("rpy"));
}

}  // namespace Varo::Model::Urdf
