#ifndef TOOL_RULES_RULE_CODES_HPP
#define TOOL_RULES_RULE_CODES_HPP

/// The codes of the rules' findings. What each means stands in docs/checking.md.
namespace Tool::Rules::code {

// What no body and no motor can be.
inline constexpr char negativeMass[] = "negative-mass";
inline constexpr char inertiaNotSymmetric[] = "inertia-not-symmetric";
inline constexpr char inertiaNotPositive[] = "inertia-not-positive";
inline constexpr char inertiaNotPossible[] = "inertia-not-possible";
inline constexpr char speedNotPositive[] = "speed-not-positive";
inline constexpr char startOutsideLimits[] = "start-outside-limits";
inline constexpr char postureOutsideLimits[] = "posture-outside-limits";

// Pairs that do not mirror.
inline constexpr char mirrorNotMutual[] = "mirror-not-mutual";
inline constexpr char mirrorKindsDiffer[] = "mirror-kinds-differ";
inline constexpr char massNotMirrored[] = "mass-not-mirrored";
inline constexpr char comNotMirrored[] = "com-not-mirrored";
inline constexpr char inertiaNotMirrored[] = "inertia-not-mirrored";
inline constexpr char limitsNotMirrored[] = "limits-not-mirrored";
inline constexpr char actuatorsNotPaired[] = "actuators-not-paired";

// What has no effect.
inline constexpr char actuatorNotReached[] = "actuator-not-reached";
inline constexpr char idleActuator[] = "idle-actuator";
inline constexpr char emptyChain[] = "empty-chain";
inline constexpr char unknownMaterial[] = "unknown-material";

inline constexpr char const* all[] = {
    negativeMass,       inertiaNotSymmetric,  inertiaNotPositive, inertiaNotPossible, speedNotPositive,
    startOutsideLimits, postureOutsideLimits, mirrorNotMutual,    mirrorKindsDiffer,  massNotMirrored,
    comNotMirrored,     inertiaNotMirrored,   limitsNotMirrored,  actuatorsNotPaired, actuatorNotReached,
    idleActuator,       emptyChain,           unknownMaterial,
};

}  // namespace Tool::Rules::code

#endif
