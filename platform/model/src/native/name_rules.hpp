#ifndef VARO_MODEL_NATIVE_NAME_RULES_HPP
#define VARO_MODEL_NATIVE_NAME_RULES_HPP

#include <string_view>

#include "native/native_codes.hpp"
#include "schema/name_rule.hpp"

/// All that is to be known of the names in a description: which attributes give names to what, and which refer to it.
namespace Varo::Model::Native {

using namespace Schema;

constexpr GivenName unique(unsigned kind, std::string_view twice, bool isLocal = false)
{
    return {kind, {&codes::duplicateName, twice, "Give each its own; the first one counts."}, isLocal};
}

constexpr WantedName oneOf(unsigned kinds, std::string_view unknown)
{
    return {kinds, {&codes::danglingReference, unknown}};
}

namespace names {

/// What has a name: bits, for one name may be that of several things.
enum NameKind : unsigned {
    joint = 1,
    subJoint = 2,
    actuator = 4,
    wheel = 8,
    root = 16,
    rootLink = 32,
    inChain = 64,  ///< a joint or a mere name that a chain lists
    hasAngle = 128,  ///< stands in a chain and has a motor, or is an actuator that is attached to what stands in one
    chain = 256,
    sensor = 512,
    referable = 255 | sensor,  ///< all kinds that names refer to
    posture = 1024,
    postureAngle = 2048,
    prettyName = 4096,
    freeAttribute = 8192,
};

constexpr WantedName listed{
    inChain,
    {&codes::jointInNoChain, "The joint % stands in no chain, so that no model will contain it.",
     "Add a jointRef to a chain."},
    true};
constexpr GivenName subJointName = unique(subJoint, "Another sub-joint already has the name %.");
constexpr GivenName nameInChain{inChain | hasAngle,
                                {&codes::jointInTwoChains, "The joint % already stands in a chain."}};
constexpr GivenName prettyNameIndex{prettyName, unique(prettyName, "Another prettyName already has the index %.").twice,
                                    false, true};

inline constexpr NameRule ofRoot{{root}};
inline constexpr NameRule ofJoint{unique(joint, "Another joint already has the name %."), listed};
inline constexpr NameRule ofChain{unique(chain, "Another chain already has the name %.")};
inline constexpr NameRule ofActuator{unique(actuator, "Another actuator already has the name %.")};
inline constexpr NameRule ofSubJoint{subJointName};
inline constexpr NameRule ofWheel{unique(wheel, "Another wheel already has the name %.")};
inline constexpr NameRule ofSensor{unique(sensor, "Another sensor already has the name %.")};
inline constexpr NameRule ofPosture{unique(posture, "Another posture already has the name %.")};
inline constexpr NameRule ofFreeAttribute{
    unique(freeAttribute, "Another attribute of this element already has the name %.", true)};
inline constexpr NameRule indexOfPrettyName{prettyNameIndex};

inline constexpr NameRule chainParent{
    {}, oneOf(joint | subJoint | root, "The chain's parent, %, is not the name of a joint or the root.")};
inline constexpr NameRule chainJoint{nameInChain, oneOf(joint, "The chain's joint, %, is not the name of a joint.")};
inline constexpr NameRule jointMirror{{},
                                      oneOf(joint | subJoint, "The joint's mirror, %, is not the name of a joint.")};
inline constexpr NameRule mimicLeader{
    {}, oneOf(joint, "The mimic's joint, %, is not the name of a joint, so that the joint moves on its own.")};
inline constexpr NameRule actuatorParent{
    {}, oneOf(joint | actuator, "The actuator's parent, %, is not the name of a joint or an actuator.")};
inline constexpr NameRule actuatorMirror{{},
                                         oneOf(actuator, "The actuator's mirror, %, is not the name of an actuator.")};
inline constexpr NameRule groupJoint{subJointName, oneOf(joint, "The group's joint, %, is not the name of a joint.")};
inline constexpr NameRule wheelParent{{},
                                      oneOf(joint | subJoint, "The wheel's parent, %, is not the name of a joint.")};
inline constexpr NameRule sensorParent{
    {},
    oneOf(joint | subJoint | wheel | root | rootLink,
          "The sensor's parent, %, is not the name of a joint, a wheel or the root, on which models therefore put "
          "it.")};
inline constexpr NameRule transmissionJoint{
    {}, oneOf(joint | subJoint, "The joint that is driven, %, is not the name of a joint.")};
inline constexpr NameRule extensionLink{
    {}, oneOf(joint | root, "The extension's link, %, is not the name of a joint or the root.")};
inline constexpr NameRule extensionJoint{{}, oneOf(joint, "The extension's joint, %, is not the name of a joint.")};
inline constexpr NameRule extensionSensor{{}, oneOf(sensor, "The extension's sensor, %, is not the name of a sensor.")};
inline constexpr NameRule angleOwner{
    unique(postureAngle, "Another angle of this posture is already that of %.", true),
    {hasAngle,
     {&codes::angleOfUnknown, "% has no angle: it is no joint of a chain that has a motor, and no actuator on one."}}};

/// Things that are attached to each other must not be so in a cycle.
struct Cycle {
    NameRule const* parent;  ///< the attribute that says what a thing is attached to
    NameRule const* part;  ///< the attribute, of the thing or its children, by whose name others are attached to it
    Complaint complaint;  ///< in which % is the thing
};
inline constexpr Cycle cycles[] = {
    {&actuatorParent,
     &ofActuator,
     {&codes::actuatorCycle, "The parents of the actuator % lead back to it.", "Attach one of them to a joint."}},
    {&chainParent,
     &chainJoint,
     {&codes::chainCycle, "The parents of the chain % lead back to it, so that it is not attached to the root."}},
};

}  // namespace names

}  // namespace Varo::Model::Native

#endif
