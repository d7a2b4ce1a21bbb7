#include <algorithm>
#include <charconv>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "rules/numbers.hpp"
#include "rules/rules.hpp"

namespace Varo::Model::Rules {

namespace {

/// Whether the text has such a number. Beside 0, a speed of 0 may stand for one that is not stated, or is infinite.
bool isStatedAsNotPositive(Statement const& statement)
{
    std::string_view text = statement.text;
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n+"), text.size()));
    double value = 0.0;
    auto const [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && value <= 0.0;
}

template <class Driven>
void checkSpeed(Report const& report, Driven const& driven, float speed)
{
    if (speed <= 0.0F && isStatedAsNotPositive(report.statement(driven, Part::velocity))) {
        report.at(driven, Part::velocity,
                  "The greatest speed of " + quoted(driven.name) + ", " + shortest(speed) + ", is not above 0.");
    }
}

template <class Driven>
void checkSpeedInRange(Report const& report, Driven const& driven)
{
    if (driven.minAngle != driven.maxAngle) {
        checkSpeed(report, driven, driven.maxAngularSpeed);
    }
}

class StartAngles {
public:
    explicit StartAngles(std::vector<PostureConfig> const& postures)
    {
        for (PostureConfig const& posture : postures) {
            for (PostureAngle const& angle : posture.angles) {
                if (posture.name == "StandInit") {
                    _stated.emplace(angle.name, &angle);
                }
            }
        }
    }

    template <class Driven>
    void check(Facts const& facts, Report const& report, Driven const& driven) const
    {
        auto const stated = _stated.find(driven.name);
        bool const isStated = stated != _stated.end();
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

private:
    std::unordered_map<std::string_view, PostureAngle const*> _stated;
};

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
    for (auto const& joint : facts.records->joints) {
        checkSpeedInRange(report, joint);
    }
    if (!facts.records->statesActuators) {
        return;  // they have the limits of a joint
    }
    for (auto const& actuator : facts.records->actuators) {
        checkSpeedInRange(report, actuator);
    }
    for (auto const& wheel : facts.records->wheels) {
        checkSpeed(report, wheel, wheel.maxVelocity);
    }
}

void findStartOutsideLimits(Facts const& facts, Report const& report)
{
    if (!facts.records->statesPostures) {
        return;  // the zero position is but one of reference
    }
    StartAngles const starts(facts.records->postures);
    std::unordered_set<std::string_view> checked;
    for (std::string const* name : angleNames(*facts.records)) {
        if (checked.insert(*name).second) {
            visitDriven(*facts.records, *name, [&](auto const& driven) { starts.check(facts, report, driven); });
        }
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
