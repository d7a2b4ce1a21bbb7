#include <algorithm>
#include <cmath>
#include <vector>

#include "robot/pose.hpp"
#include "rules/inertia.hpp"
#include "rules/numbers.hpp"
#include "rules/rules.hpp"

/// Whether numbers of a body go together, and with those of the other bodies.
namespace Varo::Model::Rules {

namespace {

/// As the text calls it.
std::string const& nameOf(JointConfig const& body)
{
    return body.linkName.empty() ? body.name : body.linkName;
}
std::string const& nameOf(WheelConfig const& wheel)
{
    return wheel.name;
}

/// Half the lengths of the box around a solid that says its size.
Vector halfSizeOf(Geometry const& geometry)
{
    double const radius = static_cast<double>(geometry.radius);
    double const halfLength = static_cast<double>(geometry.length) / 2.0;
    switch (geometry.type) {
    case GeometryType::box:
        return {static_cast<double>(geometry.size.x) / 2.0, static_cast<double>(geometry.size.y) / 2.0,
                static_cast<double>(geometry.size.z) / 2.0};
    case GeometryType::cylinder: return {radius, radius, halfLength};
    case GeometryType::capsule: return {radius, radius, halfLength + radius};
    default: return {radius, radius, radius};
    }
}

/// What the solids of a body say of its size.
struct Extent {
    double reach = 0.0;  ///< m, from the centre of mass to the farthest point; 0 when meshes hide it
    double volume = 0.0;  ///< m^3, of the boxes around the solids
};

void widen(Extent& extent, ShapeConfig const& shape, Vector const& center)
{
    Vector const half = halfSizeOf(shape.geometry);
    Pose const pose = fromTransform(poseOf(shape));
    for (int corner = 0; corner < 8; ++corner) {
        Vector const point = {(corner & 1) != 0 ? half[0] : -half[0], (corner & 2) != 0 ? half[1] : -half[1],
                              (corner & 4) != 0 ? half[2] : -half[2]};
        Vector const offset = minus((pose * Pose{{}, point}).translation, center);
        extent.reach = std::max(extent.reach, length(offset));
    }
    extent.volume += 8.0 * half[0] * half[1] * half[2];
}

/// Nothing when there are no shapes, or when some are meshes.
template <class Shape>
Extent extentOf(std::vector<Shape> const& shapes, Vector const& center)
{
    Extent extent;
    for (Shape const& shape : shapes) {
        if (shape.geometry.type == GeometryType::mesh) {
            return {};
        }
        widen(extent, shape, center);
    }
    return extent;
}

/// Of the collision shapes or, where those do not tell, of the visuals.
Extent extentOf(BodyShapes const& shapes, Position3D const& centerOfMass)
{
    Vector const center = {static_cast<double>(centerOfMass.x), static_cast<double>(centerOfMass.y),
                           static_cast<double>(centerOfMass.z)};
    Extent const extent = extentOf(shapes.collisions, center);
    return extent.reach > 0.0 ? extent : extentOf(shapes.visuals, center);
}

/// Shapes into which no matter could be pressed stand for something else: a frame to look at, say.
bool areOfTheBody(Extent const& extent, double mass)
{
    constexpr double densest = 25000.0;  // kg/m^3
    return extent.reach > 0.0 && mass <= densest * extent.volume;
}

/// How far from the centre of mass the whole mass would have to be for that inertia.
double radiusOfGyration(Inertia const& inertia, double mass)
{
    return std::sqrt(inertia.trace() / 2.0 / mass);
}

template <class Body>
void checkProportion(Facts const& facts, Report const& report, Body const& body)
{
    constexpr double tooFar = 3.0;  // times the reach
    constexpr double tooNear = 0.02;
    Inertia const inertia = inertiaOf(body.inertiaMatrix);
    double const mass = static_cast<double>(body.mass);
    Extent const extent = extentOf(body.shapes, body.centerOfMass);
    bool const isComparable = mass > 0.0 && inertia.trace() > 0.0 && areOfTheBody(extent, mass) &&
                              faultOf(inertia, facts.tolerances.inertia) == InertiaFault::none;
    double const radius = isComparable ? radiusOfGyration(inertia, mass) : extent.reach;
    bool const isTooLarge = radius > tooFar * extent.reach;
    if (isTooLarge || radius < tooNear * extent.reach) {
        report.at(body, Part::inertia,
                  std::string("The inertia of ") + quoted(nameOf(body)) + " is far too " +
                      (isTooLarge ? "large" : "small") + " for its mass and shapes: as if the mass were " +
                      rounded(radius) + " m from its centre, and the shapes reach " + rounded(extent.reach) + " m.");
    }
}

double medianMassOf(Facts const& facts)
{
    std::vector<double> masses;
    forEachBody(facts, [&](auto const& body) {
        if (body.mass > 0.0F) {
            masses.push_back(static_cast<double>(body.mass));
        }
    });
    constexpr std::size_t enough = 3;  // masses, to say what is usual
    if (masses.size() < enough) {
        return 0.0;
    }
    auto const middle = masses.begin() + static_cast<std::ptrdiff_t>(masses.size() / 2);
    std::nth_element(masses.begin(), middle, masses.end());
    return *middle;
}

/// Light bodies that do not move on their own stand for frames, or for stickers.
bool movesAlone(Facts const& facts, JointConfig const& body)
{
    return &body != &facts.records->root && isMoving(body.jointType);
}
bool movesAlone(Facts const& /*facts*/, WheelConfig const& /*wheel*/)
{
    return true;
}

}  // namespace

void findZeroInertia(Facts const& facts, Report const& report)
{
    forEachBody(facts, [&](auto const& body) {
        bool const isZero = inertiaOf(body.inertiaMatrix).isZero(0.0);
        bool const isTold = facts.records->dialect == "urdf" && !report.statement(body, Part::inertia).isStated;
        if (body.mass > 0.0F && isZero && !isTold && movesAlone(facts, body)) {
            report.at(body, Part::inertia, quoted(nameOf(body)) + " moves and has a mass, but no inertia.");
        }
    });
}

void findInertiaUnlikeShapes(Facts const& facts, Report const& report)
{
    forEachBody(facts, [&](auto const& body) { checkProportion(facts, report, body); });
}

void findMassUnlikeOthers(Facts const& facts, Report const& report)
{
    constexpr double factor = 1e4;
    double const median = medianMassOf(facts);
    forEachBody(facts, [&](auto const& body) {
        double const mass = static_cast<double>(body.mass);
        bool const isLight = mass > 0.0 && mass * factor < median && movesAlone(facts, body);
        if (median > 0.0 && (isLight || mass > factor * median)) {
            report.at(body, Part::mass,
                      "The mass of " + quoted(nameOf(body)) + ", " + shortest(body.mass) +
                          " kg, is far from those of " + "the other bodies, of which half are " +
                          (isLight ? "above " : "below ") + rounded(median) + " kg.");
        }
    });
}

}  // namespace Varo::Model::Rules
