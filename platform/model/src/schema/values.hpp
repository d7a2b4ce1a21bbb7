#ifndef VARO_MODEL_SCHEMA_VALUES_HPP
#define VARO_MODEL_SCHEMA_VALUES_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "range.hpp"
#include "varo/model/configs.hpp"

/// The types of values that attributes and texts of the native dialect may have: for each its name, what it means, how
/// it is read, and how it is written such that reading gives the same value, bit by bit. Neither knows of locales.
namespace Varo::Model::Schema {

/// Names are shorter than this, in characters.
constexpr std::size_t longestName = 1024;

/// A word that stands for a number in the records.
using Word = ValueWord;

struct ValueType {
    std::string_view name;  ///< in the documentation and the schema
    std::string_view meaning;  ///< completes the sentence "The value is not ..."
    Range<Word> words = {};  ///< all possible values, when they are words
    std::size_t count = 0;  ///< how many numbers the value is, for dialects that take fewer or more
};

/// The text without the white space around it.
std::string_view trimmed(std::string_view text);

/// A finite decimal number in single precision. White space around it and a leading plus are taken; what is too small
/// for single precision becomes zero.
bool parseNumber(std::string_view text, float& value);

/// Exactly `count` numbers separated by white space.
bool parseNumbers(std::string_view text, float* values, std::size_t count);

bool parseInteger(std::string_view text, std::int32_t& value);

bool parseWord(std::string_view text, Range<Word> words, std::int32_t& value);

/// The shortest number that reads as `value`.
std::string printNumber(float value);
std::string printNumber(double value);

std::string printNumbers(float const* values, std::size_t count);

/// Empty when no word stands for the value.
std::string printWord(Range<Word> words, std::int32_t value);

/// Any text, kept as it is.
struct Text {
    static constexpr ValueType type{"text", "a text"};
    static bool parse(std::string_view text, std::string& value);
    static std::string print(std::string const& value) { return value; }
};

/// A text that says something; white space around it does not count.
struct Line : Text {
    static constexpr ValueType type{"line", "a text of at least one character"};
    static bool parse(std::string_view text, std::string& value);
};

/// A text that says something, kept as it is.
struct File : Text {
    static constexpr ValueType type{"file", "the name of a file: a text of at least one character"};
    static bool parse(std::string_view text, std::string& value);
};

struct Name : Text {
    static constexpr ValueType type{"name", "a name: a text of 1 to 1024 characters"};
    static bool parse(std::string_view text, std::string& value);
};

struct Number {
    static constexpr ValueType type{"number", "a finite decimal number, such as 0.5 or -2e-3"};
    static bool parse(std::string_view text, float& value) { return parseNumber(text, value); }
    static std::string print(float value) { return printNumber(value); }
};

/// The measure of a solid.
struct Length : Number {
    static constexpr ValueType type{"length", "a finite decimal number that is not negative"};
    static bool parse(std::string_view text, float& value);
};

/// A number that need not be there.
struct OptionalNumber {
    static constexpr ValueType const& type = Number::type;
    static bool parse(std::string_view text, std::optional<float>& value);
    static std::string print(std::optional<float> value) { return value ? printNumber(*value) : std::string(); }
};

/// A number, or the word `unlimited` for the infinity on its side.
template <int side>
struct Limit {
    static constexpr ValueType type{"limit", "a finite decimal number or the word unlimited"};
    static bool parse(std::string_view text, float& value);
    static std::string print(float value);
};
using LowerLimit = Limit<-1>;
using UpperLimit = Limit<1>;

struct Integer {
    static constexpr ValueType type{"integer", "a whole number of at most 32 bits"};
    static bool parse(std::string_view text, std::int32_t& value) { return parseInteger(text, value); }
    static std::string print(std::int32_t value) { return std::to_string(value); }
};

struct Boolean {
    static constexpr ValueType type{"boolean", "one of true, false, 1 and 0"};
    static bool parse(std::string_view text, bool& value);
    static std::string print(bool value) { return value ? "true" : "false"; }
};

struct Vector3 {
    static constexpr ValueType type{"vector3", "three finite decimal numbers separated by white space"};
    static bool parse(std::string_view text, Position3D& value);
    static std::string print(Position3D const& value);
};

/// The measures of a solid along its axes.
struct Lengths3 : Vector3 {
    static constexpr ValueType type{"lengths3",
                                    "three finite decimal numbers, none negative, separated by white space"};
    static bool parse(std::string_view text, Position3D& value);
};

struct Color {
    static constexpr ValueType type{
        "color", "four decimal numbers from 0 to 1 separated by white space: red, green, blue and opacity"};
    static bool parse(std::string_view text, std::array<float, 4>& value);
    static std::string print(std::array<float, 4> const& value) { return printNumbers(value.data(), value.size()); }
};

struct Matrix9 {
    static constexpr ValueType type{"matrix9", "nine finite decimal numbers separated by white space"};
    static bool parse(std::string_view text, std::vector<float>& value);
    static std::string print(std::vector<float> const& value) { return printNumbers(value.data(), value.size()); }
};

struct Matrix12 {
    static constexpr ValueType type{"matrix12", "twelve finite decimal numbers separated by white space"};
    static bool parse(std::string_view text, std::array<float, 12>& value);
    static std::string print(std::array<float, 12> const& value) { return printNumbers(value.data(), value.size()); }
};

/// One of the words of `Words::words`.
template <class Words>
struct OneOf {
    static bool parse(std::string_view text, std::int32_t& value) { return parseWord(text, Words::words, value); }
    static std::string print(std::int32_t value) { return printWord(Words::words, value); }
};

/// The type that a value of the records has unless an attribute says otherwise.
template <class Value>
struct TypeOf;
template <>
struct TypeOf<std::string> : Text {};
template <>
struct TypeOf<float> : Number {};
template <>
struct TypeOf<std::optional<float>> : OptionalNumber {};
template <>
struct TypeOf<std::int32_t> : Integer {};
template <>
struct TypeOf<bool> : Boolean {};
template <>
struct TypeOf<Position3D> : Vector3 {};
template <>
struct TypeOf<std::vector<float>> : Matrix9 {};
template <>
struct TypeOf<std::array<float, 12>> : Matrix12 {};

}  // namespace Varo::Model::Schema

#endif
