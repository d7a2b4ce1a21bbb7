#include <algorithm>
#include <cmath>
#include <utility>

#include <Eigen/Core>

#include "rules/mirrored_bodies.hpp"
#include "rules/named_pairs.hpp"
#include "rules/numbers.hpp"

/// Sensors and wheels whose names say that they are counterparts.
namespace Varo::Model::Rules {

namespace {

/// Where the carriers of two devices are, as far as that lets their places be compared.
enum class Carriers { unknown, pair, one };

/// Of a sensor or wheel, in the root frame.
template <class Config>
Pose poseOf(Facts const& facts, Config const& device, std::string const& carrier)
{
    JointConfig const* const joint = facts.records->joints.find(carrier);
    return (joint == nullptr ? Pose() : facts.placeOf(*joint).link) * fromTransform(device.placement);
}

Carriers carriersOf(Facts const& facts, std::string const& one, std::string const& other)
{
    if (one != other) {
        return provedPair(facts, one, other) == nullptr ? Carriers::unknown : Carriers::pair;
    }
    JointConfig const* const joint = facts.records->joints.find(one);
    bool const isReached = joint == nullptr ? facts.records->root.name == one : facts.placeOf(*joint).isReached;
    return isReached ? Carriers::one : Carriers::unknown;
}

/// Whether two places on one carrier are about as far from the plane, on either side: those of a pair of cameras are
/// the left and right of their head, say, and may be anywhere.
bool lieOnBothSides(MirrorPlane const& plane, Vector const& one, Vector const& other)
{
    constexpr double about = 0.1;
    double const across = std::abs(one[plane.axis] - other[plane.axis]);
    double const middle = std::abs((one[plane.axis] + other[plane.axis]) / 2.0 - plane.offset);
    return across > 0.0 && middle <= about * across;
}

/// How far the second place misses the reflection of the first, where they are to be compared.
template <class Config>
double missOfPlaces(Facts const& facts, Config const& first, Config const& second, std::string const& carrier,
                    std::string const& otherCarrier)
{
    Carriers const carriers =
        facts.sides.plane.support > 0 ? carriersOf(facts, carrier, otherCarrier) : Carriers::unknown;
    bool const isCopy = carriers == Carriers::pair && first.placement.isNear(second.placement);
    if (carriers == Carriers::unknown || isCopy) {
        return 0.0;
    }
    Vector const one = poseOf(facts, first, carrier).translation;
    Vector const other = poseOf(facts, second, otherCarrier).translation;
    bool const isCompared = carriers == Carriers::pair || lieOnBothSides(facts.sides.plane, one, other);
    return isCompared ? length(minus(facts.sides.plane.reflected(one), other)) : 0.0;
}

/// Whether one of the frames is the other's reflection but for one axis, or all, which no reflected frame leaves.
bool areTurnedAsReflections(Facts const& facts, Pose const& first, Pose const& second)
{
    Eigen::Matrix3d const reflected = reflectionOf(facts.sides.plane) * rotationOf(first);
    Eigen::Matrix3d const other = rotationOf(second);
    double const tolerance = directionTolerance;
    for (Eigen::Vector3d const& signs : {Eigen::Vector3d(-1, 1, 1), Eigen::Vector3d(1, -1, 1),
                                         Eigen::Vector3d(1, 1, -1), Eigen::Vector3d(-1, -1, -1)}) {
        Eigen::Matrix3d const turned = reflected * signs.asDiagonal();
        if ((turned - other).cwiseAbs().maxCoeff() <= tolerance) {
            return true;
        }
    }
    return false;
}

/// A setting that two sensors of one kind have alike; empty for one that is not stated.
struct SettingText {
    char const* name;
    std::string (*text)(SensorConfig const& sensor);
};

std::string textOfNumber(double value)
{
    return value == 0.0 ? std::string() : rounded(value);
}

std::string attributeOf(SensorConfig const& sensor, char const* name)
{
    auto const found = sensor.attributes.find(name);
    return found == sensor.attributes.end() ? std::string() : found->second;
}

template <class Get>
std::string ofCamera(SensorConfig const& sensor, Get const& get)
{
    bool const isStated = sensor.settings != nullptr && sensor.settings->camera.has_value();
    return isStated ? get(*sensor.settings->camera) : std::string();
}

std::string textOfScan(SensorConfig const& sensor, std::optional<ScanSettings> SensorSettings::*member)
{
    if (sensor.settings == nullptr || !((*sensor.settings).*member)) {
        return {};
    }
    ScanSettings const& scan = *((*sensor.settings).*member);
    return std::to_string(scan.samples) + " rays of " + shortest(scan.resolution) + " over " +
           shortest(scan.maximumAngle - scan.minimumAngle) + " rad";
}

std::string textOfRange(SensorConfig const& sensor)
{
    bool const isStated = sensor.settings != nullptr && sensor.settings->range.has_value();
    return isStated ? rangeText(sensor.settings->range->minimum, sensor.settings->range->maximum) : std::string();
}

constexpr SettingText settings[] = {
    {"kinds", [](SensorConfig const& sensor) { return std::to_string(sensor.type) + attributeOf(sensor, "urdfType"); }},
    {"resolutions", [](SensorConfig const& sensor) { return attributeOf(sensor, "resolutions"); }},
    {"update rates",
     [](SensorConfig const& sensor) {
         return sensor.settings == nullptr ? std::string()
                                           : textOfNumber(static_cast<double>(sensor.settings->updateRate));
     }},
    {"fields of view",
     [](SensorConfig const& sensor) {
         return ofCamera(sensor, [](CameraSettings const& camera) {
             return textOfNumber(static_cast<double>(camera.horizontalFieldOfView));
         });
     }},
    {"clipping distances",
     [](SensorConfig const& sensor) {
         return ofCamera(sensor,
                         [](CameraSettings const& camera) { return rangeText(camera.nearClip, camera.farClip); });
     }},
    {"horizontal scans",
     [](SensorConfig const& sensor) { return textOfScan(sensor, &SensorSettings::horizontalScan); }},
    {"vertical scans", [](SensorConfig const& sensor) { return textOfScan(sensor, &SensorSettings::verticalScan); }},
    {"ranges", textOfRange},
};

}  // namespace

JointPair const* provedPair(Facts const& facts, std::string const& one, std::string const& other)
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

bool differ(float a, float b, double tolerance)
{
    auto const [one, other] = std::pair(static_cast<double>(a), static_cast<double>(b));
    return a != b && std::abs(one - other) > tolerance * std::max(std::abs(one), std::abs(other));
}

/// A sensor that is placed alike on both, as on hands of one make, is where it should be.
void findSensorNotMirrored(Facts const& facts, Report const& report)
{
    forEachNamedPair(facts.records->sensors, [&](SensorConfig const& first, SensorConfig const& second) {
        double const miss = missOfPlaces(facts, first, second, first.parent, second.parent);
        if (miss > facts.sides.tolerance) {
            report.ofTwo(second, first, Part::placement,
                         "The places of the sensors " + namesOf(first, second) + " miss each other's reflection by " +
                             rounded(miss) + " m.");
        } else if (provedPair(facts, first.parent, second.parent) != nullptr &&
                   !first.placement.isNear(second.placement) &&
                   !areTurnedAsReflections(facts, poseOf(facts, first, first.parent),
                                           poseOf(facts, second, second.parent))) {
            report.ofTwo(second, first, Part::placement,
                         "The sensors " + namesOf(first, second) + " are not turned as each other's reflections.");
        }
    });
}

void findSensorSetOtherwise(Facts const& facts, Report const& report)
{
    forEachNamedPair(facts.records->sensors, [&](SensorConfig const& first, SensorConfig const& second) {
        if (carriersOf(facts, first.parent, second.parent) == Carriers::unknown) {
            return;
        }
        for (SettingText const& setting : settings) {
            std::string const one = setting.text(first);
            std::string const other = setting.text(second);
            if (one != other) {
                bool const areTold = &setting != std::begin(settings);  // kinds are numbers
                auto const shown = [](std::string const& text) { return text.empty() ? "none" : text; };
                report.ofTwo(second, first, Part::whole,
                             std::string("The ") + setting.name + " of the sensors " + namesOf(first, second) +
                                 " differ" + (areTold ? ": " + shown(one) + " and " + shown(other) : "") + ".");
                return;
            }
        }
    });
}

void findWheelNotMirrored(Facts const& facts, Report const& report)
{
    using Of = Quantity<WheelConfig>;
    forEachNamedPair(facts.records->wheels, [&](WheelConfig const& first, WheelConfig const& second) {
        for (Of const& quantity : {Of{&WheelConfig::mass, Part::mass, "masses"},
                                   Of{&WheelConfig::maxTorque, Part::effort, "greatest efforts"},
                                   Of{&WheelConfig::maxVelocity, Part::velocity, "greatest velocities"}}) {
            compare(facts, report, first, second, "wheels", quantity);
        }
        double const miss = missOfPlaces(facts, first, second, first.parentJoint, second.parentJoint);
        if (miss > facts.sides.tolerance) {
            report.ofTwo(second, first, Part::placement,
                         "The places of the wheels " + namesOf(first, second) + " miss each other's reflection by " +
                             rounded(miss) + " m.");
        }
    });
}

}  // namespace Varo::Model::Rules
