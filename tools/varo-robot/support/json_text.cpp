#include "support/json_text.hpp"

#include <cmath>

#include "support/numbers.hpp"

namespace Tool {

namespace {

std::string readableNumber(float value)
{
    return std::isfinite(value) ? shortest(value) : "unlimited";
}

/// Pairs of a name and a ratio read "name x ratio".
bool isPair(Json const& value)
{
    return value.is_array() && value.size() == 2 && value[1].is_number_float() && !value[0].is_number();
}

constexpr char nothing[] = "-";

/// "name value, name value", without what has no value.
std::string members(Json const& object)
{
    std::string text;
    for (auto const& [key, value] : object.items()) {
        std::string const readableValue = readable(value);
        if (readableValue != nothing) {
            text += (text.empty() ? "" : ", ") + key + " " + readableValue;
        }
    }
    return text;
}

std::string joined(Json const& array)
{
    char const* const separator = array[0].is_number() ? " " : ", ";
    std::string text;
    for (Json const& entry : array) {
        text += (text.empty() ? "" : separator) + readable(entry);
    }
    return text;
}

Varo::Math::Transform poseOf(Json const& matrix)
{
    std::array<float, 12> rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = matrix[i].get<float>();
    }
    return Varo::Math::Transform::fromRows(rows);
}

}  // namespace

bool isPose(Json const& value)
{
    return value.is_array() && value.size() == 16 && value[0].is_number_float();
}

std::string readable(Json const& value)
{
    if (value.is_null() || (value.is_structured() && value.empty())) {
        return nothing;
    }
    if (value.is_string()) {
        return value.get<std::string>().empty() ? nothing : value.get<std::string>();
    }
    if (value.is_number_float()) {
        return readableNumber(value.get<float>());
    }
    if (value.is_boolean()) {
        return value.get<bool>() ? "yes" : "no";
    }
    if (isPose(value)) {
        return poseText(poseOf(value));
    }
    if (isPair(value)) {
        return readable(value[0]) + " x " + readable(value[1]);
    }
    if (value.is_object()) {
        return members(value);
    }
    return value.is_array() ? joined(value) : value.dump();
}

std::string originOf(Json const& pose)
{
    Varo::Math::Position3D const origin = poseOf(pose).position();
    return triple({origin.x, origin.y, origin.z});
}

}  // namespace Tool
