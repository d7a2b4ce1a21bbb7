#ifndef VARO_MODEL_RULES_RULES_HPP
#define VARO_MODEL_RULES_RULES_HPP

#include <vector>

#include "rules/facts.hpp"

/// What the table of rules (lint.cpp) calls, one function for each, in the source of its family.
namespace Varo::Model::Rules {

// body_rules.cpp
void findNegativeMass(Facts const& facts, Report const& report);
void findInertiaNotSymmetric(Facts const& facts, Report const& report);
void findInertiaNotPositive(Facts const& facts, Report const& report);
void findInertiaNotPossible(Facts const& facts, Report const& report);

// proportion_rules.cpp
void findZeroInertia(Facts const& facts, Report const& report);
void findInertiaUnlikeShapes(Facts const& facts, Report const& report);
void findMassUnlikeOthers(Facts const& facts, Report const& report);

// motion_rules.cpp
void findSpeedNotPositive(Facts const& facts, Report const& report);
void findEffortNotPositive(Facts const& facts, Report const& report);
void findLimitsInDegrees(Facts const& facts, Report const& report);
void findNegativeDamping(Facts const& facts, Report const& report);
void findNegativeFriction(Facts const& facts, Report const& report);
void findStartOutsideLimits(Facts const& facts, Report const& report);
void findPostureOutsideLimits(Facts const& facts, Report const& report);

// mirror_rules.cpp
void findMirrorNotMutual(Facts const& facts, Report const& report);
void findMirrorKindsDiffer(Facts const& facts, Report const& report);
void findLimitsNotMirrored(Facts const& facts, Report const& report);
void findActuatorsNotPaired(Facts const& facts, Report const& report);

// side_rules.cpp
/// Those whose axes go together otherwise than all others of their limb: which convention it follows is its author's
/// affair, but it should be one. What follows from such an axis is not to be told again.
/// In the order of their addresses.
std::vector<JointPair const*> pairsOfOddAxis(Facts const& facts);
void findPlaceNotMirrored(Facts const& facts, Report const& report);
void findAxisNotMirrored(Facts const& facts, Report const& report);
void findAxisDirectionNotMirrored(Facts const& facts, Report const& report);
void findTypeNotMirrored(Facts const& facts, Report const& report);
void findNoCounterpart(Facts const& facts, Report const& report);
void findSidesNotMirrored(Facts const& facts, Report const& report);

// mirrored_joint_rules.cpp
void findMassNotMirrored(Facts const& facts, Report const& report);
void findEffortNotMirrored(Facts const& facts, Report const& report);
void findVelocityNotMirrored(Facts const& facts, Report const& report);
void findDampingNotMirrored(Facts const& facts, Report const& report);
void findFrictionNotMirrored(Facts const& facts, Report const& report);
void findMimicNotMirrored(Facts const& facts, Report const& report);

// mirrored_body_rules.cpp
void findComNotMirrored(Facts const& facts, Report const& report);
void findInertiaNotMirrored(Facts const& facts, Report const& report);

// mirrored_shape_rules.cpp
void findShapesNotMirrored(Facts const& facts, Report const& report);
void findMeshOfOtherSide(Facts const& facts, Report const& report);

// mirrored_device_rules.cpp
void findSensorNotMirrored(Facts const& facts, Report const& report);
void findSensorSetOtherwise(Facts const& facts, Report const& report);
void findWheelNotMirrored(Facts const& facts, Report const& report);

// mirrored_actuator_rules.cpp
void findActuatorNotMirrored(Facts const& facts, Report const& report);
void findTipNotMirrored(Facts const& facts, Report const& report);
void findStartNotMirrored(Facts const& facts, Report const& report);

// use_rules.cpp
void findActuatorNotReached(Facts const& facts, Report const& report);
void findIdleActuator(Facts const& facts, Report const& report);
void findEmptyChain(Facts const& facts, Report const& report);
void findUnknownMaterial(Facts const& facts, Report const& report);

}  // namespace Varo::Model::Rules

#endif
