#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <vector>

#include "rules/numbers.hpp"
#include "rules/rules.hpp"

namespace Varo::Model::Rules {

namespace {

/// Whether the text has such a number. Beside 0, a limit of 0 may stand for one that is not stated, or is infinite.
bool isStatedAsNotPositive(Statement const& statement)
{
    std::string_view text = statement.text;
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n+"), text.size()));
    double value = 0.0;
    auto const [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && value <= 0.0;
}

/// A bound that lets nothing move when it is 0.
struct Bound {
    Part part;
    char const* name;
};
constexpr Bound speed{Part::velocity, "speed"};
constexpr Bound effort{Part::effort, "effort"};

template <class Driven>
void checkBound(Report const& report, Driven const& driven, Bound const& bound, float value)
{
    if (value <= 0.0F && isStatedAsNotPositive(report.statement(driven, bound.part))) {
        report.at(driven, bound.part,
                  std::string("The greatest ") + bound.name + " of " + quoted(driven.name) + ", " + shortest(value) +
                      ", is not above 0.");
    }
}

/// Of all that moves; the fields are those of joints and actuators, and of wheels.
template <class Field, class WheelField>
void checkBounds(Facts const& facts, Report const& report, Bound const& bound, Field const& field,
                 WheelField const& wheelField)
{
    auto const checkInRange = [&](auto const& driven) {
        if (driven.minAngle != driven.maxAngle) {
            checkBound(report, driven, bound, field(driven));
        }
    };
    for (auto const& joint : facts.records->joints) {
        checkInRange(joint);
    }
    if (!facts.records->statesActuators) {
        return;  // they have the limits of a joint
    }
    for (auto const& actuator : facts.records->actuators) {
        checkInRange(actuator);
    }
    for (auto const& wheel : facts.records->wheels) {
        checkBound(report, wheel, bound, wheelField(wheel));
    }
}

/// Beyond two turns each way, and yet no more than two in degrees.
bool looksLikeDegrees(float limit)
{
    constexpr double twoTurns = 12.566;  // rad
    double const size = std::abs(static_cast<double>(limit));
    return size > twoTurns && size <= 720.0 && std::floor(2.0 * size) == 2.0 * size;
}

void findNegative(Facts const& facts, Report const& report, float JointConfig::*field, Part part,
                  std::string const& name)
{
    for (JointConfig const& joint : facts.records->joints) {
        if (joint.*field < 0.0F && isMoving(joint.jointType)) {
            report.at(joint, part,
                      "The " + name + " of " + quoted(joint.name) + ", " + shortest(joint.*field) +
                          ", is negative: it would drive the joint on.");
        }
    }
}

template <class Driven>
void checkStart(Facts const& facts, Report const& report, Driven const& driven)
{
    auto const stated = facts.startAngles.find(driven.name);
    bool const isStated = stated != facts.startAngles.end();
    double const angle = isStated ? static_cast<double>(stated->second->value) : 0.0;
    double const min = static_cast<double>(driven.minAngle) - facts.tolerances.limit;
    double const max = static_cast<double>(driven.maxAngle) + facts.tolerances.limit;
    bool const isReversed = driven.minAngle > driven.maxAngle;
    if (isReversed || (angle >= min && angle <= max)) {
        return;
    }
    std::string const message = "The start angle of " + quoted(driven.name) + ", " +
                                shortest(static_cast<float>(angle)) + ", is outside its limits, " +
                                rangeText(driven.minAngle, driven.maxAngle) + ".";
    if (isStated) {
        report.at(*stated->second, Part::value, message);
    } else {
        report.at(driven, angle < min ? Part::minimum : Part::maximum, message,
                  "An angle that the posture StandInit does not state is 0.");
    }
}

/// Calls `visit` with what moves under that name: an actuator's limits hide those of a joint of the same name.
template <class Visit>
void visitDriven(Records const& records, std::string const& name, Visit const& visit)
{
    if (auto const* actuator = records.actuators.find(name)) {
        visit(*actuator);
    } else if (auto const* joint = records.joints.find(name)) {
        visit(*joint);
    }
}

/// Which joints and actuators were looked at before: chains may list one twice.
class Seen {
public:
    explicit Seen(Records const& records)
        : _records(records), _joints(records.joints.size()), _actuators(records.actuators.size())
    {}

    bool isFirstTime(JointConfig const& joint) { return isFirst(_joints, &joint - &_records.joints[0]); }
    bool isFirstTime(ActuatorConfig const& actuator) { return isFirst(_actuators, &actuator - &_records.actuators[0]); }

private:
    static bool isFirst(std::vector<bool>& seen, std::ptrdiff_t index)
    {
        bool const wasSeen = seen[static_cast<std::size_t>(index)];
        seen[static_cast<std::size_t>(index)] = true;
        return !wasSeen;
    }

    Records const& _records;
    std::vector<bool> _joints;
    std::vector<bool> _actuators;
};

template <class Driven>
void checkAngle(Facts const& facts, Report const& report, std::string const& posture, PostureAngle const& angle,
                Driven const& driven)
{
    double const value = static_cast<double>(angle.value);
    double const outside =
        std::max(static_cast<double>(driven.minAngle) - value, value - static_cast<double>(driven.maxAngle));
    if (driven.minAngle <= driven.maxAngle && outside > facts.tolerances.limit) {
        report.at(angle, Part::value,
                  "The angle of " + quoted(driven.name) + " in the posture " + quoted(posture) + ", " +
                      shortest(angle.value) + ", is outside its limits, " +
                      rangeText(driven.minAngle, driven.maxAngle) + ".");
    }
}

}  // namespace

void findSpeedNotPositive(Facts const& facts, Report const& report)
{
    checkBounds(
        facts, report, speed, [](auto const& driven) { return driven.maxAngularSpeed; },
        [](auto const& wheel) { return wheel.maxVelocity; });
}

void findEffortNotPositive(Facts const& facts, Report const& report)
{
    auto const torque = [](auto const& driven) { return driven.maxTorque; };
    checkBounds(facts, report, effort, torque, torque);
}

void findLimitsInDegrees(Facts const& facts, Report const& report)
{
    for (JointConfig const& joint : facts.records->joints) {
        bool const isLower = looksLikeDegrees(joint.minAngle);
        if (joint.jointType == revolute && (isLower || looksLikeDegrees(joint.maxAngle))) {
            report.at(joint, isLower ? Part::minimum : Part::maximum,
                      "The limits of " + quoted(joint.name) + ", " + rangeText(joint.minAngle, joint.maxAngle) +
                          ", look like degrees.",
                      "Limits are in rad.");
        }
    }
}

void findNegativeDamping(Facts const& facts, Report const& report)
{
    findNegative(facts, report, &JointConfig::damping, Part::damping, "damping");
}

void findNegativeFriction(Facts const& facts, Report const& report)
{
    findNegative(facts, report, &JointConfig::friction, Part::friction, "friction");
}

void findStartOutsideLimits(Facts const& facts, Report const& report)
{
    if (!facts.records->statesPostures) {
        return;  // the zero position is but one of reference
    }
    Seen seen(*facts.records);
    for (std::string const* name : angleNames(*facts.records)) {
        visitDriven(*facts.records, *name, [&](auto const& driven) {
            if (seen.isFirstTime(driven)) {
                checkStart(facts, report, driven);
            }
        });
    }
}

void findPostureOutsideLimits(Facts const& facts, Report const& report)
{
    for (PostureConfig const& posture : facts.records->postures) {
        if (posture.name == "StandInit") {
            continue;  // another rule's
        }
        for (PostureAngle const& angle : posture.angles) {
            visitDriven(*facts.records, angle.name,
                        [&](auto const& driven) { checkAngle(facts, report, posture.name, angle, driven); });
        }
    }
}

}  // namespace Varo::Model::Rules
