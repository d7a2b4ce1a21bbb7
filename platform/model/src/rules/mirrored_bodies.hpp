#ifndef VARO_MODEL_RULES_MIRRORED_BODIES_HPP
#define VARO_MODEL_RULES_MIRRORED_BODIES_HPP

#include <Eigen/Core>

#include "rules/rules.hpp"

/// Bodies of pairs are compared where the zero pose puts them, in the axes of the root, whatever the axes of their
/// links are. Where most bodies that could tell are copies of each other instead, the sides are made of the same parts,
/// and copies are what they should be; as they are where a part looks the same on both sides.
namespace Varo::Model::Rules {

Eigen::Matrix3d rotationOf(Pose const& pose);
Eigen::Matrix3d reflectionOf(MirrorPlane const& plane);
Eigen::Vector3d vectorOf(Position3D const& position);

/// Whether the links of the pair stand as reflections would, save that they may be displaced.
bool areComparable(Facts const& facts, JointPair const& pair);

/// A point in the link frame, as seen from the frame of the joint, in the axes of the root.
Eigen::Vector3d armOf(Facts const& facts, JointConfig const& joint, Eigen::Vector3d const& point);

/// From the second point, each in its link frame, to the reflection of the first. That the joints are displaced is told
/// of them, and left aside.
Eigen::Vector3d missOfPoints(Facts const& facts, JointPair const& pair, Eigen::Vector3d const& first,
                             Eigen::Vector3d const& second);

/// m, of points of bodies.
double pointTolerance(Facts const& facts);

/// Whether both sides are made of the same parts, and not of reflected ones, as most of their centres of mass say.
bool areSidesCopies(Facts const& facts);

/// One part may serve both sides: a motor, say. It is known by its mesh.
bool haveOneMesh(JointPair const& pair);

}  // namespace Varo::Model::Rules

#endif
