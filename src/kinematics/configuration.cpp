#include "sim/configuration.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "kinematics/kinematics_impl.hpp"
#include "kinematics/unknown_name.hpp"
#include "sim/kinematics.hpp"

namespace Sim {

namespace {

/// How far what a posture says of a joint that follows may be from where its leader puts it (rad, or m).
constexpr double followingTolerance = 1e-4;

template <class Number>
std::string text(Number value)
{
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

void requireUsable(std::string const& name, double value)
{
    if (!(std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max()))) {
        throw std::invalid_argument("The value of " + quoted(name) + " is not a finite number" +
                                    (std::isfinite(value) ? " of single precision." : "."));
    }
}

double valueOf(Drive const& drive, std::vector<double> const& values)
{
    double const variable = drive.variable == Drive::noVariable ? 0.0 : values[drive.variable];
    return drive.ratio * variable + drive.offset;
}

bool hasValue(Drive const& drive)
{
    return drive.variable != Drive::noVariable && !drive.follows;
}

/// The index of the variable whose value the name stands for. Throws std::invalid_argument when it stands for none.
std::size_t variableNamed(std::string const& name, JointDrives const& drives)
{
    Drive const& drive = drives.moving(name);
    if (drive.follows) {
        std::string const leader = quoted(drives.variables()[drive.variable].name);
        throw std::invalid_argument(quoted(name) + " follows " + leader + ": give the value to " + leader + ".");
    }
    return drive.variable;
}

/// Gives values to variables by name, each one only once.
class Assignment {
public:
    Assignment(JointDrives const& drives, std::vector<double> values)
        : _drives(drives), _values(std::move(values)), _givenBy(_values.size())
    {}

    void set(std::string const& name, double value)
    {
        std::size_t const variable = variableNamed(name, _drives);
        requireUsable(name, value);
        std::string const before = std::exchange(_givenBy[variable], name);
        if (!before.empty() && _values[variable] != value) {
            throw std::invalid_argument(before == name ? quoted(name) + " is given two values."
                                                       : quoted(before) + " and " + quoted(name) +
                                                             " move the same joint, but have different values.");
        }
        _values[variable] = value;
    }

    std::vector<double> const& values() const { return _values; }

private:
    JointDrives const& _drives;
    std::vector<double> _values;
    std::vector<std::string> _givenBy;
};

Varo::Model::PostureConfig const& findPosture(std::vector<Varo::Model::PostureConfig> const& postures,
                                              std::string const& name)
{
    auto const nameOf = [](Varo::Model::PostureConfig const& posture) -> std::string const& { return posture.name; };
    auto const found = std::find_if(postures.begin(), postures.end(),
                                    [&](Varo::Model::PostureConfig const& each) { return each.name == name; });
    if (found == postures.end()) {
        throw unknownName("posture", name, postures, nameOf);
    }
    return *found;
}

std::vector<double> valuesOf(Varo::Model::PostureConfig const& posture, JointDrives const& drives)
{
    Assignment assignment(drives, std::vector<double>(drives.variables().size()));
    for (Varo::Model::PostureAngle const& angle : posture.angles) {
        if (hasValue(drives.named(angle.name))) {
            assignment.set(angle.name, static_cast<double>(angle.value));
        }
    }
    for (Varo::Model::PostureAngle const& angle : posture.angles) {
        Drive const& drive = drives.named(angle.name);
        double const stands = valueOf(drive, assignment.values());
        if (!hasValue(drive) && std::abs(stands - static_cast<double>(angle.value)) > followingTolerance) {
            variableNamed(angle.name, drives);  // says why it has no value
        }
    }
    return assignment.values();
}

}  // namespace

Configuration::Configuration(Kinematics const& kinematics)
    : _kinematics(kinematics._impl), _values(kinematics.variables().size())
{}

Configuration::Configuration(Kinematics const& kinematics, std::string const& posture) : Configuration(kinematics)
{
    setPosture(posture);
}

Configuration::Configuration(Configuration const& other) = default;

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment, modernize-use-equals-default): in this order
Configuration& Configuration::operator=(Configuration const& other)
{
    _values = other._values;  // first, because it may throw
    _kinematics = other._kinematics;
    return *this;
}

Configuration::~Configuration() = default;

double Configuration::at(std::string const& name) const
{
    return valueOf(_kinematics->drives.named(name), _values);
}

void Configuration::set(std::size_t index, double value)
{
    requireIndex(index);
    requireUsable(_kinematics->drives.variables()[index].name, value);
    _values[index] = value;
}

void Configuration::set(std::string const& name, double value)
{
    std::size_t const variable = variableNamed(name, _kinematics->drives);
    requireUsable(name, value);
    _values[variable] = value;
}

void Configuration::set(std::vector<std::pair<std::string, double>> const& values)
{
    Assignment assignment(_kinematics->drives, _values);
    for (auto const& [name, value] : values) {
        assignment.set(name, value);
    }
    _values = assignment.values();
}

void Configuration::setValues(std::vector<double> const& values)
{
    requireSize("values", values.size(), size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        requireUsable(_kinematics->drives.variables()[i].name, values[i]);
    }
    _values = values;
}

void Configuration::setPosture(std::string const& name)
{
    Varo::Model::PostureConfig const& posture = findPosture(_kinematics->postures, name);
    try {
        _values = valuesOf(posture, _kinematics->drives);
    } catch (std::invalid_argument const& error) {
        throw std::invalid_argument("Posture " + quoted(name) + ": " + error.what());
    }
}

double Configuration::distanceToLimits(std::size_t index) const
{
    requireIndex(index);
    JointVariable const& variable = _kinematics->drives.variables()[index];
    return std::min(_values[index] - variable.min, variable.max - _values[index]);
}

void Configuration::clampToLimits()
{
    for (std::size_t i = 0; i < size(); ++i) {
        JointVariable const& variable = _kinematics->drives.variables()[i];
        _values[i] = std::clamp(_values[i], variable.min, variable.max);
    }
}

void Configuration::checkLimits() const
{
    for (std::size_t i = 0; i < size(); ++i) {
        if (distanceToLimits(i) < 0.0) {
            JointVariable const& variable = _kinematics->drives.variables()[i];
            throw std::invalid_argument("The value of " + quoted(variable.name) + ", " + text(_values[i]) +
                                        ", is outside its limits, " + text(static_cast<float>(variable.min)) + " to " +
                                        text(static_cast<float>(variable.max)) + ".");
        }
    }
}

void Configuration::requireIndex(std::size_t index) const
{
    if (index >= size()) {
        throw std::invalid_argument("There is no value " + std::to_string(index) + " among " + std::to_string(size()) +
                                    ".");
    }
}

}  // namespace Sim
