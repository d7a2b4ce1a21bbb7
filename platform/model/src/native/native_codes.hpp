#ifndef VARO_MODEL_NATIVE_CODES_HPP
#define VARO_MODEL_NATIVE_CODES_HPP

#include "finding_codes.hpp"
#include "robot/link_tree_codes.hpp"

namespace Varo::Model::Native {

/// The kinds of findings that only texts of the native dialect give.
namespace codes {

// The tables of the native dialect.
inline constexpr FindingCode unknownElement{"unknown-element", Severity::error,
                                            "An element stands where the format has none of that name."};
inline constexpr FindingCode unknownAttribute{"unknown-attribute", Severity::error,
                                              "An element has an attribute that the format does not know."};
inline constexpr FindingCode missingElement{"missing-element", Severity::error, "A required element is missing."};
inline constexpr FindingCode missingAttribute{"missing-attribute", Severity::error, "A required attribute is missing."};
inline constexpr FindingCode repeatedElement{"repeated-element", Severity::error,
                                             "An element stands twice where it may stand once."};
inline constexpr FindingCode unexpectedText{"unexpected-text", Severity::error,
                                            "Text stands in an element that holds none."};
inline constexpr FindingCode wrongValue{"wrong-value", Severity::error,
                                        "A value is not of the type that its attribute or element has."};
inline constexpr FindingCode conflictingAttributes{"conflicting-attributes", Severity::error,
                                                   "Attributes that exclude each other stand in one element."};
inline constexpr FindingCode duplicateName{"duplicate-name", Severity::error,
                                           "Two elements of one kind have the same name."};
inline constexpr FindingCode reversedLimits{"reversed-limits", Severity::warning,
                                            "The smallest value is greater than the greatest."};
inline constexpr FindingCode mirroredMesh{"mirrored-mesh", Severity::warning,
                                          "A mesh has a negative scale, which mirrors it."};
inline constexpr FindingCode missingMaterial{"missing-material", Severity::warning,
                                             "A wheel has no material; no model can be built of the robot."};

// What the kinds of sensors need.
inline constexpr FindingCode missingSensorText{
    "missing-sensor-text", Severity::warning,
    "A sensor lacks a text that its kind needs; no model can be built of the robot."};
inline constexpr FindingCode wrongSensorText{"wrong-sensor-text", Severity::warning,
                                             "A text of a sensor is not what models read in it."};
inline constexpr FindingCode wrongKeyCount{
    "wrong-key-count", Severity::warning,
    "A sensor has more or fewer keys than its kind may have, so that no model will contain it."};

// Names that refer to other elements.
inline constexpr FindingCode actuatorCycle{"actuator-cycle", Severity::error,
                                           "The chain of an actuator's parents leads back to it."};
inline constexpr FindingCode danglingReference{"dangling-reference", Severity::warning,
                                               "A name refers to an element that is not there."};
inline constexpr FindingCode jointInNoChain{"joint-in-no-chain", Severity::warning,
                                            "A joint stands in no chain, so that no model will contain it."};
inline constexpr FindingCode jointInTwoChains{"joint-in-two-chains", Severity::warning,
                                              "A joint stands in chains more than once."};
inline constexpr FindingCode tooManyChainPlaces{
    "too-many-chain-places", Severity::error,
    "The chains list joints again and again: more than 1,000,000 places of joints and what is attached to them, and 16 "
    "for each joint, chain, actuator and sub-joint."};
inline constexpr FindingCode chainCycle{
    "chain-cycle", Severity::warning,
    "Chains are attached to each other in a cycle, so that none is attached to the root."};
inline constexpr FindingCode angleOfUnknown{
    "angle-of-unknown", Severity::warning,
    "A posture gives an angle to what has none; as start posture it keeps a model from being built."};

/// In the order of the documentation. What is said of mimics comes from the layer of links and joints.
inline constexpr FindingCode const* ofDialect[] = {
    &unknownElement,
    &unknownAttribute,
    &missingElement,
    &missingAttribute,
    &repeatedElement,
    &unexpectedText,
    &wrongValue,
    &conflictingAttributes,
    &duplicateName,
    &reversedLimits,
    &mirroredMesh,
    &missingMaterial,
    &missingSensorText,
    &wrongSensorText,
    &wrongKeyCount,
    &actuatorCycle,
    &Model::codes::mimicCycle,
    &Model::codes::notANumber,
    &danglingReference,
    &jointInNoChain,
    &jointInTwoChains,
    &tooManyChainPlaces,
    &chainCycle,
    &angleOfUnknown,
};

}  // namespace codes

}  // namespace Varo::Model::Native

#endif
