#include "schema/values.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "decimal_size.hpp"
#include "short_decimal.hpp"
#include "xml/utf8.hpp"
#include "xml/words.hpp"

namespace Varo::Model::Schema {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The digits, point and exponent that a finite number has behind its sign; false for the words that `from_chars`
/// knows beside numbers.
bool startsLikeNumber(std::string_view text)
{
    if (!text.empty() && text.front() == '-') {
        text.remove_prefix(1);
    }
    return !text.empty() && (isDigit(text.front()) || text.front() == '.');
}

/// A number in the form of one that is out of the range of single precision: zero or its nearest neighbour when it is
/// too small, false when it is too large.
bool parseTinyNumber(std::string_view text, float& value)
{
    double wide = 0.0;
    auto const result = std::from_chars(text.data(), text.data() + text.size(), wide);
    if (result.ec == std::errc() && std::abs(wide) < 1.0) {
        value = static_cast<float>(wide);
        return true;
    }
    if (result.ec == std::errc::result_out_of_range && isBelowOne(text)) {
        value = text.front() == '-' ? -0.0F : 0.0F;
        return true;
    }
    return false;
}

/// A number without white space around it.
bool parseBareNumber(std::string_view text, float& value)
{
    std::string_view const digits = withoutPlus(text);
    float number = 0.0F;
    if (parseShortDecimal(digits, number) == digits.size() && !digits.empty()) {
        value = number;
        return true;
    }
    if (!startsLikeNumber(digits)) {
        return false;
    }
    char const* const end = digits.data() + digits.size();
    auto const result = std::from_chars(digits.data(), end, number);
    if (result.ptr != end) {
        return false;
    }
    if (result.ec == std::errc::result_out_of_range) {
        return parseTinyNumber(digits, value);
    }
    if (result.ec != std::errc()) {
        return false;
    }
    value = number;
    return true;
}

}  // namespace

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isXmlSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isXmlSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool parseNumber(std::string_view text, float& value)
{
    return parseBareNumber(trimmed(text), value);
}

bool parseNumbers(std::string_view text, float* values, std::size_t count)
{
    std::size_t found = 0;
    for (text = trimmed(text); !text.empty(); ++found) {
        if (found == count) {
            return false;
        }
        std::size_t length = parseShortDecimal(text, values[found]);
        if (length == 0 || (length < text.size() && !isXmlSpace(text[length]))) {
            length = endOf(text, 0, isOfWord);
            if (!parseBareNumber(text.substr(0, length), values[found])) {
                return false;
            }
        }
        text.remove_prefix(endOf(text, length, isXmlSpace));
    }
    return found == count;
}

bool parseInteger(std::string_view text, std::int32_t& value)
{
    std::string_view const digits = withoutPlus(trimmed(text));
    char const* const end = digits.data() + digits.size();
    std::int32_t number = 0;
    auto const result = std::from_chars(digits.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        return false;
    }
    value = number;
    return true;
}

bool parseWord(std::string_view text, Range<Word> words, std::int32_t& value)
{
    std::string_view const word = trimmed(text);
    for (Word const& known : words) {
        if (known.word == word) {
            value = known.value;
            return true;
        }
    }
    return false;
}

namespace {

template <class Float>
std::string printShortest(Float value)
{
    std::array<char, 32> digits;
    auto const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

}  // namespace

std::string printNumber(float value)
{
    return printShortest(value);
}

std::string printNumber(double value)
{
    return printShortest(value);
}

std::string printNumbers(float const* values, std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += i == 0 ? "" : " ";
        text += printNumber(values[i]);
    }
    return text;
}

std::string printWord(Range<Word> words, std::int32_t value)
{
    for (Word const& known : words) {
        if (known.value == value) {
            return std::string(known.word);
        }
    }
    return {};
}

bool Text::parse(std::string_view text, std::string& value)
{
    value = text;
    return true;
}

bool Line::parse(std::string_view text, std::string& value)
{
    value = std::string(trimmed(text));
    return !value.empty();
}

bool File::parse(std::string_view text, std::string& value)
{
    value = text;
    return !value.empty();
}

bool Name::parse(std::string_view text, std::string& value)
{
    if (text.empty() || (text.size() > longestName && countCharacters(text) > longestName)) {
        return false;
    }
    value = text;
    return true;
}

bool Length::parse(std::string_view text, float& value)
{
    float number = 0.0F;
    if (!parseNumber(text, number) || number < 0.0F) {
        return false;
    }
    value = number;
    return true;
}

bool OptionalNumber::parse(std::string_view text, std::optional<float>& value)
{
    float number = 0.0F;
    if (!parseNumber(text, number)) {
        return false;
    }
    value = number;
    return true;
}

template <int side>
bool Limit<side>::parse(std::string_view text, float& value)
{
    if (parseNumber(text, value)) {
        return true;
    }
    if (trimmed(text) != "unlimited") {
        return false;
    }
    value = side * std::numeric_limits<float>::infinity();
    return true;
}

template <int side>
std::string Limit<side>::print(float value)
{
    return value == side * std::numeric_limits<float>::infinity() ? "unlimited" : printNumber(value);
}

template struct Limit<-1>;
template struct Limit<1>;

bool Boolean::parse(std::string_view text, bool& value)
{
    static constexpr Word words[] = {{"true", 1}, {"false", 0}, {"1", 1}, {"0", 0}};
    std::int32_t number = 0;
    bool const known = parseWord(text, words, number);
    value = known ? number != 0 : value;
    return known;
}

bool Vector3::parse(std::string_view text, Position3D& value)
{
    std::array<float, 3> numbers{};
    if (!parseNumbers(text, numbers.data(), numbers.size())) {
        return false;
    }
    value = {numbers[0], numbers[1], numbers[2]};
    return true;
}

std::string Vector3::print(Position3D const& value)
{
    std::array<float, 3> const numbers = {value.x, value.y, value.z};
    return printNumbers(numbers.data(), numbers.size());
}

bool Lengths3::parse(std::string_view text, Position3D& value)
{
    Position3D lengths;
    if (!Vector3::parse(text, lengths) || std::min({lengths.x, lengths.y, lengths.z}) < 0.0F) {
        return false;
    }
    value = lengths;
    return true;
}

bool Color::parse(std::string_view text, std::array<float, 4>& value)
{
    std::array<float, 4> channels{};
    auto const isChannel = [](float number) { return number >= 0.0F && number <= 1.0F; };
    if (!parseNumbers(text, channels.data(), channels.size()) ||
        !std::all_of(channels.begin(), channels.end(), isChannel)) {
        return false;
    }
    value = channels;
    return true;
}

bool Matrix9::parse(std::string_view text, std::vector<float>& value)
{
    std::array<float, 9> numbers{};
    if (!parseNumbers(text, numbers.data(), numbers.size())) {
        return false;
    }
    value.assign(numbers.begin(), numbers.end());
    return true;
}

bool Matrix12::parse(std::string_view text, std::array<float, 12>& value)
{
    std::array<float, 12> numbers{};
    if (!parseNumbers(text, numbers.data(), numbers.size())) {
        return false;
    }
    value = numbers;
    return true;
}

}  // namespace Varo::Model::Schema
