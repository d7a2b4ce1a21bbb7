#include <algorithm>
#include <cmath>

#include "robot/side_names.hpp"
#include "rules/numbers.hpp"
#include "rules/rules.hpp"

/// Sensors and wheels whose names say that they are counterparts, on joints that are.
namespace Varo::Model::Rules {

namespace {

/// Calls `visit` with every two that are named for the two sides, in the order of the text.
template <class Config, class Visit>
void forEachNamedPair(Table<Config> const& table, Visit const& visit)
{
    for (Config const& second : table) {
        SideNames const names = otherSideOf(second.name);
        for (std::string const& other : names.others) {
            Config const* const first = names.areMarked ? table.find(other) : nullptr;
            if (first != nullptr && first < &second) {
                visit(*first, second);
                break;
            }
        }
    }
}

/// Null unless the two joints are a pair that proves to mirror.
JointPair const* pairOf(Facts const& facts, std::string const& one, std::string const& other)
{
    auto const kind = facts.pairsOfKind.find(withoutSides(one));
    if (kind == facts.pairsOfKind.end()) {
        return nullptr;
    }
    for (std::size_t const index : kind->second) {
        JointPair const& pair = facts.jointPairs[index];
        bool const isIt = (pair.first.name == one && pair.second.name == other) ||
                          (pair.first.name == other && pair.second.name == one);
        if (isIt && pair.side.isProved() && !pair.side.isAskew) {
            return &pair;
        }
    }
    return nullptr;
}

/// In the root frame.
template <class Config>
Vector placeOf(Facts const& facts, Config const& device, std::string const& joint)
{
    return (facts.placeOf(*facts.records->joints.find(joint)).link * fromTransform(device.placement)).translation;
}

bool differ(float a, float b, double tolerance)
{
    auto const [one, other] = std::pair(static_cast<double>(a), static_cast<double>(b));
    return a != b && std::abs(one - other) > tolerance * std::max(std::abs(one), std::abs(other));
}

}  // namespace

/// A sensor that is placed alike on both, as on hands of one make, is where it should be.
void findSensorNotMirrored(Facts const& facts, Report const& report)
{
    forEachNamedPair(facts.records->sensors, [&](SensorConfig const& first, SensorConfig const& second) {
        if (pairOf(facts, first.parent, second.parent) == nullptr || first.placement.isNear(second.placement)) {
            return;
        }
        double const miss = length(minus(facts.sides.plane.reflected(placeOf(facts, first, first.parent)),
                                         placeOf(facts, second, second.parent)));
        if (miss > facts.sides.tolerance) {
            report.ofTwo(second, first, Part::placement,
                         "The places of the sensors " + namesOf(first, second) + " miss each other's reflection by " +
                             rounded(miss) + " m.");
        }
    });
}

void findWheelNotMirrored(Facts const& facts, Report const& report)
{
    struct Quantity {
        float WheelConfig::*field;
        Part part;
        char const* name;
    };
    forEachNamedPair(facts.records->wheels, [&](WheelConfig const& first, WheelConfig const& second) {
        for (Quantity const& quantity : {Quantity{&WheelConfig::mass, Part::mass, "masses"},
                                         {&WheelConfig::maxTorque, Part::effort, "greatest efforts"},
                                         {&WheelConfig::maxVelocity, Part::velocity, "greatest velocities"}}) {
            float const one = first.*quantity.field;
            float const other = second.*quantity.field;
            if (one >= 0.0F && other >= 0.0F && differ(one, other, facts.tolerances.mass)) {
                report.ofTwo(second, first, quantity.part,
                             std::string("The ") + quantity.name + " of the wheels " + namesOf(first, second) +
                                 " differ: " + shortest(one) + " and " + shortest(other) + ".");
            }
        }
    });
}

}  // namespace Varo::Model::Rules
