#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <Eigen/Core>

#include "robot/side_names.hpp"
#include "rules/mirrored_bodies.hpp"
#include "rules/numbers.hpp"

/// What the bodies of pairs look like and collide with.
namespace Varo::Model::Rules {

namespace {

using Eigen::Matrix3d;
using Eigen::Vector3d;

/// A solid that says its size, in the link frame.
struct Solid {
    ShapeConfig const* shape;
    Vector3d center;
    Matrix3d spread;  ///< m^2: the squares of the half lengths along its axes, which says what symmetries it has
};

Solid solidOf(ShapeConfig const& shape)
{
    Geometry const& geometry = shape.geometry;
    double const radius = static_cast<double>(geometry.radius);
    Vector3d half(radius, radius, radius);
    if (geometry.type == GeometryType::box) {
        half = vectorOf(geometry.size) / 2.0;
    } else if (geometry.type != GeometryType::sphere) {
        half[2] = static_cast<double>(geometry.length) / 2.0;
    }
    Matrix3d const rotation = rotationOf(fromTransform(poseOf(shape)));
    return {&shape, vectorOf(shape.position), rotation * half.cwiseAbs2().asDiagonal() * rotation.transpose()};
}

template <class Shape>
std::vector<Solid> solidsOf(std::vector<Shape> const& shapes)
{
    std::vector<Solid> solids;
    for (Shape const& shape : shapes) {
        if (shape.geometry.type != GeometryType::mesh) {
            solids.push_back(solidOf(shape));
        }
    }
    return solids;
}

/// m, of the half lengths of two solids in the same axes.
double missOfSpreads(Matrix3d const& one, Matrix3d const& other)
{
    double const greatest = std::max(one.cwiseAbs().maxCoeff(), other.cwiseAbs().maxCoeff());
    return greatest == 0.0 ? 0.0 : (one - other).cwiseAbs().maxCoeff() / (2.0 * std::sqrt(greatest));
}

/// The solids of a pair, matched one to one as far as they agree.
class SolidMatcher {
public:
    SolidMatcher(Facts const& facts, JointPair const& pair, bool mayBeCopies)
        : _facts(facts),
          _pair(pair),
          _mayBeCopies(mayBeCopies),
          _reflection(reflectionOf(facts.sides.plane)),
          _first(rotationOf(facts.placeOf(pair.first).link)),
          _second(rotationOf(facts.placeOf(pair.second).link))
    {}

    /// Takes out of both what agrees: in their order, and of few in any order.
    void match(std::vector<Solid>& first, std::vector<Solid>& second) const
    {
        constexpr std::size_t few = 24;
        std::vector<Solid> rest;
        for (std::size_t i = 0; i < first.size(); ++i) {
            bool const isInOrder = i < second.size() && second[i].shape != nullptr && agree(first[i], second[i]);
            std::size_t j = isInOrder ? i : second.size() <= few ? 0 : second.size();
            while (j < second.size() && (second[j].shape == nullptr || !agree(first[i], second[j]))) {
                ++j;
            }
            if (j == second.size()) {
                rest.push_back(first[i]);
            } else {
                second[j].shape = nullptr;
            }
        }
        first = std::move(rest);
        second.erase(
            std::remove_if(second.begin(), second.end(), [](Solid const& solid) { return solid.shape == nullptr; }),
            second.end());
    }

    bool haveOneSize(Solid const& one, Solid const& other) const
    {
        return one.shape->geometry.type == other.shape->geometry.type &&
               missOfSpreads(spreadOfFirst(one), spreadOfSecond(other)) <= pointTolerance(_facts);
    }

private:
    Matrix3d spreadOfFirst(Solid const& solid) const
    {
        Matrix3d const turn = _reflection * _first;
        return turn * solid.spread * turn.transpose();
    }
    Matrix3d spreadOfSecond(Solid const& solid) const { return _second * solid.spread * _second.transpose(); }

    bool agree(Solid const& one, Solid const& other) const
    {
        double const tolerance = pointTolerance(_facts);
        if (haveOneSize(one, other) && missOfPoints(_facts, _pair, one.center, other.center).norm() <= tolerance) {
            return true;
        }
        return _mayBeCopies && one.shape->geometry.type == other.shape->geometry.type &&
               missOfSpreads(one.spread, other.spread) <= tolerance && (one.center - other.center).norm() <= tolerance;
    }

    Facts const& _facts;
    JointPair const& _pair;
    bool _mayBeCopies;
    Matrix3d _reflection;
    Matrix3d _first;  ///< of the links, in the root frame
    Matrix3d _second;
};

class ShapeComparison {
public:
    ShapeComparison(Facts const& facts, Report const& report)
        : _facts(facts), _report(report), _areCopies(areSidesCopies(facts))
    {}

    template <class Shape>
    void compare(JointPair const& pair, std::vector<Shape> BodyShapes::*shapes, std::string const& kind) const
    {
        std::vector<Solid> first = solidsOf(pair.first.shapes.*shapes);
        std::vector<Solid> second = solidsOf(pair.second.shapes.*shapes);
        SolidMatcher const matcher(_facts, pair, _areCopies || haveOneMesh(pair));
        matcher.match(first, second);
        if (first.empty() && second.empty()) {
            return;
        }
        if (first.empty() || second.empty()) {
            bool const isOfFirst = second.empty();
            reportLone(*(isOfFirst ? first : second).front().shape, isOfFirst ? pair.second : pair.first, kind);
        } else {
            bool const haveOneSize = matcher.haveOneSize(first.front(), second.front());
            reportDifferent(pair, *first.front().shape, *second.front().shape, haveOneSize, kind);
        }
    }

private:
    void reportLone(ShapeConfig const& shape, JointConfig const& other, std::string const& kind) const
    {
        _report.at(shape, Part::whole,
                   "This " + kind + " has no counterpart on the body of " + quoted(other.name) + ".");
    }

    void reportDifferent(JointPair const& pair, ShapeConfig const& first, ShapeConfig const& second, bool haveOneSize,
                         std::string const& kind) const
    {
        int const line = _report.lineOf(first);
        _report.at(second, haveOneSize ? Part::placement : Part::geometry,
                   "The " + kind + " shapes of " + namesOf(pair.first, pair.second) +
                       (haveOneSize ? " are not placed as each other's reflections." : " are of different sizes."),
                   line == 0 ? "" : "The other stands in line " + std::to_string(line) + ".");
    }

    Facts const& _facts;
    Report const& _report;
    bool _areCopies;
};

/// The side that words of the joint's name say or, if none do, of its link's.
Side sideOfJoint(JointConfig const& joint)
{
    Side const side = sideOf(joint.name);
    return side == Side::unknown ? sideOf(joint.linkName) : side;
}

/// The name of a file, without folders and what follows the last dot.
std::string_view stemOf(std::string_view uri)
{
    uri.remove_prefix(std::min(uri.find_last_of("/\\") + 1, uri.size()));
    return uri.substr(0, uri.rfind('.'));
}

bool isTurnedOver(Geometry const& geometry)
{
    return geometry.scale.x * geometry.scale.y * geometry.scale.z < 0.0F;
}

/// A mesh whose name says the other side than its joint's does.
struct Stray {
    VisualConfig visual;
    JointConfig const* joint;
};

/// What the names of the meshes of a limb, on either side, say.
struct LimbMeshes {
    std::size_t own = 0;  ///< how many are named for the side of their joint
    std::vector<Stray> strays;

    void add(JointConfig const& joint)
    {
        Side const side = sideOfJoint(joint);
        for (VisualConfig& visual : visualsOf(joint)) {
            bool const isMesh = visual.geometry.type == GeometryType::mesh && !isTurnedOver(visual.geometry);
            Side const ofMesh = isMesh ? sideOf(stemOf(visual.geometry.uri)) : Side::unknown;
            if (side == Side::unknown || ofMesh == Side::unknown) {
                continue;
            }
            if (ofMesh == side) {
                ++own;
            } else {
                strays.push_back({std::move(visual), &joint});
            }
        }
    }

    /// Whether each side has its meshes, rather than both the same.
    bool areOfSides() const { return own > 2 * strays.size(); }
};

}  // namespace

void findShapesNotMirrored(Facts const& facts, Report const& report)
{
    ShapeComparison const comparison(facts, report);
    for (JointPair const& pair : facts.jointPairs) {
        if (areComparable(facts, pair)) {
            comparison.compare(pair, &BodyShapes::collisions, "collision");
            comparison.compare(pair, &BodyShapes::visuals, "visual");
        }
    }
}

/// Limbs whose sides share meshes, whatever these are called, are not judged.
void findMeshOfOtherSide(Facts const& facts, Report const& report)
{
    std::vector<LimbMeshes> limbs(facts.jointPairs.size());
    for (JointPair const& pair : facts.jointPairs) {
        if (pair.side.limb != none) {
            limbs[pair.side.limb].add(pair.first);
            limbs[pair.side.limb].add(pair.second);
        }
    }
    for (LimbMeshes const& limb : limbs) {
        for (auto const& [visual, joint] : limb.areOfSides() ? limb.strays : std::vector<Stray>()) {
            report.at(visual, Part::geometry,
                      "The mesh " + quoted(visual.geometry.uri) + " is named for the other side than " +
                          quoted(joint->name) + ".");
        }
    }
}

}  // namespace Varo::Model::Rules
