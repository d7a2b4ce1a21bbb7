#ifndef VARO_MODEL_URDF_VALUES_HPP
#define VARO_MODEL_URDF_VALUES_HPP

#include <optional>
#include <string>
#include <string_view>

#include "schema/values.hpp"
#include "urdf/statements.hpp"

/// The types of values that URDF has, which are looser than those of the native dialect: of a text that is not of the
/// type they take what can be used, and answer false. Numbers are
/// written such that reading gives the same one.
namespace Varo::Model::Urdf {

/// Names are shorter than this, in bytes.
constexpr std::size_t longestName = 1000;

/// Any text, kept as it is.
struct View {
    static constexpr Schema::ValueType type{"text", "any text"};
    static bool parse(std::string_view text, std::string_view& value) { return value = text, true; }
    static std::string print(std::string_view value) { return std::string(value); }
};

struct Name : View {
    static constexpr Schema::ValueType type{"name", "a text of 1 to 1000 bytes"};
    static bool parse(std::string_view text, std::string_view& value);
};

struct Real {
    static constexpr Schema::ValueType type{"number", "a decimal number between -1e30 and 1e30", {}, 1};
    static bool parse(std::string_view text, double& value);
    static std::string print(double value) { return Schema::printNumber(value); }
};

/// A number that need not be there.
struct OptionalReal {
    static constexpr Schema::ValueType const& type = Real::type;
    static bool parse(std::string_view text, std::optional<double>& value);
    static std::string print(std::optional<double> value) { return value ? Real::print(*value) : std::string(); }
};

/// A number that bounds something on its side, which one beyond all bounds does not.
template <int side>
struct Bound : Real {
    static constexpr Schema::ValueType type{
        "bound", "a number, which beyond 1e30 (below -1e30 for the lower bound) means that there is no bound", {}, 1};
    static bool parse(std::string_view text, double& value);
    /// Other programs take no word for infinity, but numbers beyond all bounds.
    static std::string print(double value);
};
using LowerBound = Bound<-1>;
using UpperBound = Bound<1>;

/// The measure of a solid; of a negative one, its magnitude.
struct Length : Real {
    static constexpr Schema::ValueType type{"length", "a number that is not negative", {}, 1};
    static bool parse(std::string_view text, double& value);
};

struct Reals3 {
    static constexpr Schema::ValueType type{"3 numbers", "three numbers separated by white space", {}, 3};
    static bool parse(std::string_view text, Vector& value);
    static std::string print(Vector const& value);
};

struct Lengths3 : Reals3 {
    static constexpr Schema::ValueType type{"3 lengths", "three lengths separated by white space", {}, 3};
    static bool parse(std::string_view text, Vector& value);
};

struct Scale : Reals3 {
    static constexpr Schema::ValueType type{"scale", "three numbers, or one for all three directions", {}, 3};
    static bool parse(std::string_view text, Vector& value);
};

struct Channels {
    static constexpr Schema::ValueType type{
        "colour", "four numbers from 0 to 1 separated by white space: red, green, blue and opacity", {}, 4};
    static bool parse(std::string_view text, Rgba& value);
    static std::string print(Rgba const& value);
};

constexpr std::string_view jointTypeHint = "The types are revolute, continuous, prismatic, fixed, planar and floating.";

struct JointTypes : Schema::OneOf<JointTypes> {
    static constexpr Schema::Word words[] = {{"revolute", revolute},   {"continuous", continuous},
                                             {"prismatic", prismatic}, {"fixed", fixed},
                                             {"planar", planar},       {"floating", floating}};
    static constexpr Schema::ValueType type{"joint type", "a type of joint", words};
};

}  // namespace Varo::Model::Urdf

namespace Varo::Model::Schema {

template <>
struct TypeOf<std::string_view> : Urdf::View {};
template <>
struct TypeOf<double> : Urdf::Real {};
template <>
struct TypeOf<std::optional<double>> : Urdf::OptionalReal {};
template <>
struct TypeOf<Vector> : Urdf::Reals3 {};
template <>
struct TypeOf<Urdf::Rgba> : Urdf::Channels {};

}  // namespace Varo::Model::Schema

#endif
