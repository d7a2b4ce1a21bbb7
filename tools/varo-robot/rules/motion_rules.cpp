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

/// Whether this number says so. Beside 0, a speed of 0 may stand for one that is not written down, or is infinite.
bool isWrittenAsNotPositive(std::string text)
{
    boost::algorithm::trim_left_if(text, boost::algorithm::is_any_of(" \t\r\n+"));
    double value = 0.0;
    auto const [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && value <= 0.0;
}

void checkSpeed(Facts& facts, Subject const& subject, float speed)
{
    if (speed <= 0.0F && isWrittenAsNotPositive(facts.findings.textOf(subject))) {
        facts.warn(subject, code::speedNotPositive,
                   "The greatest speed of " + quoted(std::string(subject.name)) + ", " + shortest(speed) +
                       ", is not above 0.");
    }
}

template <class Driven>
void checkSpeedInRange(Facts& facts, std::string_view element, Driven const& driven)
{
    if (driven.minAngle != driven.maxAngle) {
        checkSpeed(facts, {element, driven.name, "@maxSpeed"}, driven.maxAngularSpeed);
    }
}

void checkSpeeds(Facts& facts)
{
    for (std::string const& name : facts.jointNames) {
        checkSpeedInRange(facts, "joint", facts.joints.at(name));
    }
    if (!facts.isNative) {
        return;  // the actuators of couplings have the limits of a joint
    }
    for (std::string const& name : facts.actuatorNames) {
        checkSpeedInRange(facts, "actuator", facts.actuators.at(name));
    }
    for (std::string const& name : facts.wheelNames) {
        checkSpeed(facts, {"wheel", name, "@maxVelocity"}, facts.wheels.at(name).maxVelocity);
    }
}

class StartAngles {
public:
    explicit StartAngles(std::vector<Varo::Model::PostureConfig> const& postures)
    {
        for (Varo::Model::PostureConfig const& posture : postures) {
            if (posture.name == "StandInit") {
                _stated.insert(posture.angles.begin(), posture.angles.end());
            }
        }
    }

    template <class Driven>
    void check(Facts& facts, std::string_view element, Driven const& driven) const
    {
        auto const stated = _stated.find(driven.name);
        bool const isStated = stated != _stated.end();
        double const angle = isStated ? static_cast<double>(stated->second) : 0.0;
        double const min = static_cast<double>(driven.minAngle) - facts.tolerances.limit;
        double const max = static_cast<double>(driven.maxAngle) + facts.tolerances.limit;
        bool const isReversed = driven.minAngle > driven.maxAngle;
        if (isReversed || (angle >= min && angle <= max)) {
            return;
        }
        Subject const atStart = {"angle", driven.name, "@value"};
        Subject const atLimit = {element, driven.name, angle < min ? "@min" : "@max"};
        facts.warn(isStated ? atStart : atLimit, code::startOutsideLimits,
                   "The start angle of " + quoted(driven.name) + ", " + shortest(static_cast<float>(angle)) +
                       ", is outside its limits, " + rangeText(driven.minAngle, driven.maxAngle) + ".",
                   isStated ? "" : "An angle that the posture StandInit does not state is 0.");
    }

private:
    std::unordered_map<std::string_view, float> _stated;
};

/// Of all that has a start angle.
void checkStarts(Facts& facts)
{
    StartAngles const starts(facts.postures);
    std::unordered_set<std::string> checked;
    for (std::string const& name : Varo::Model::angleNames(facts.chainNames, facts.chains, facts.actuators)) {
        if (!checked.insert(name).second) {
            continue;
        }
        // An actuator's limits hide those of a joint of the same name.
        if (auto const actuator = facts.actuators.find(name); actuator != facts.actuators.end()) {
            starts.check(facts, "actuator", actuator->second);
        } else if (auto const joint = facts.joints.find(name); joint != facts.joints.end()) {
            starts.check(facts, "joint", joint->second);
        }
    }
}

}  // namespace

void checkMotions(Facts& facts)
{
    checkSpeeds(facts);
    if (facts.isNative) {  // URDF states no start angles; its zero position is one of reference
        checkStarts(facts);
    }
}

}  // namespace Tool::Rules
