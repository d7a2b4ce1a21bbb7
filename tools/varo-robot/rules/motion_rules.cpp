#include <algorithm>
#include <charconv>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/trim.hpp>

#include "rules/facts.hpp"
#include "rules/rule_codes.hpp"
#include "support/numbers.hpp"

namespace Tool::Rules {

namespace {

/// Whether the text has such a number. Beside 0, a speed of 0 may stand for one that is not stated, or is infinite.
bool isStatedAsNotPositive(Varo::Model::Statement const& statement)
{
    std::string text(statement.text);
    boost::algorithm::trim_left_if(text, boost::algorithm::is_any_of(" \t\r\n+"));
    double value = 0.0;
    auto const [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && value <= 0.0;
}

template <class Driven>
void checkSpeed(Facts& facts, Driven const& driven, float speed)
{
    if (speed <= 0.0F && isStatedAsNotPositive(facts.robot.statement(driven, Part::velocity))) {
        facts.warn(driven, Part::velocity, code::speedNotPositive,
                   "The greatest speed of " + quoted(driven.name) + ", " + shortest(speed) + ", is not above 0.");
    }
}

template <class Driven>
void checkSpeedInRange(Facts& facts, Driven const& driven)
{
    if (driven.minAngle != driven.maxAngle) {
        checkSpeed(facts, driven, driven.maxAngularSpeed);
    }
}

void checkSpeeds(Facts& facts)
{
    for (auto const& joint : facts.records->joints) {
        checkSpeedInRange(facts, joint);
    }
    if (!facts.records->statesActuators) {
        return;  // they have the limits of a joint
    }
    for (auto const& actuator : facts.records->actuators) {
        checkSpeedInRange(facts, actuator);
    }
    for (auto const& wheel : facts.records->wheels) {
        checkSpeed(facts, wheel, wheel.maxVelocity);
    }
}

class StartAngles {
public:
    explicit StartAngles(std::vector<Varo::Model::PostureConfig> const& postures)
    {
        for (Varo::Model::PostureConfig const& posture : postures) {
            for (Varo::Model::PostureAngle const& angle : posture.angles) {
                if (posture.name == "StandInit") {
                    _stated.emplace(angle.name, &angle);
                }
            }
        }
    }

    template <class Driven>
    void check(Facts& facts, Driven const& driven) const
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
            facts.warn(*stated->second, Part::value, code::startOutsideLimits, message);
        } else {
            facts.warn(driven, angle < min ? Part::minimum : Part::maximum, code::startOutsideLimits, message,
                       "An angle that the posture StandInit does not state is 0.");
        }
    }

private:
    std::unordered_map<std::string_view, Varo::Model::PostureAngle const*> _stated;
};

template <class Driven>
void checkAngle(Facts& facts, std::string const& posture, Varo::Model::PostureAngle const& angle, Driven const& driven)
{
    double const value = static_cast<double>(angle.value);
    double const outside =
        std::max(static_cast<double>(driven.minAngle) - value, value - static_cast<double>(driven.maxAngle));
    if (driven.minAngle <= driven.maxAngle && outside > facts.tolerances.limit) {
        facts.warn(angle, Part::value, code::postureOutsideLimits,
                   "The angle of " + quoted(driven.name) + " in the posture " + quoted(posture) + ", " +
                       shortest(angle.value) + ", is outside its limits, " +
                       rangeText(driven.minAngle, driven.maxAngle) + ".");
    }
}

/// Of what postures other than the start say.
void checkPosture(Facts& facts, Varo::Model::PostureConfig const& posture)
{
    for (Varo::Model::PostureAngle const& angle : posture.angles) {
        // An actuator's limits hide those of a joint of the same name.
        if (auto const* actuator = facts.records->actuators.find(angle.name)) {
            checkAngle(facts, posture.name, angle, *actuator);
        } else if (auto const* joint = facts.records->joints.find(angle.name)) {
            checkAngle(facts, posture.name, angle, *joint);
        }
    }
}

/// Of all that has a start angle.
void checkStarts(Facts& facts)
{
    StartAngles const starts(facts.records->postures);
    std::unordered_set<std::string_view> checked;
    for (std::string const* name : angleNames(*facts.records)) {
        if (!checked.insert(*name).second) {
            continue;
        }
        // An actuator's limits hide those of a joint of the same name.
        if (auto const* actuator = facts.records->actuators.find(*name)) {
            starts.check(facts, *actuator);
        } else if (auto const* joint = facts.records->joints.find(*name)) {
            starts.check(facts, *joint);
        }
    }
}

}  // namespace

void checkMotions(Facts& facts)
{
    checkSpeeds(facts);
    if (facts.records->statesPostures) {  // elsewhere the zero position is but one of reference
        checkStarts(facts);
    }
    for (Varo::Model::PostureConfig const& posture : facts.records->postures) {
        if (posture.name != "StandInit") {
            checkPosture(facts, posture);
        }
    }
}

}  // namespace Tool::Rules
