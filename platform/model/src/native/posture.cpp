#include "native/elements.hpp"
#include "schema/children.hpp"

namespace Varo::Model::Native {

namespace {

constexpr Attribute<PostureAngle> angleAttributes[] = {
    named<&PostureAngle::name>("of", names::angleOwner,
                               "a joint of a chain that has a motor, or an actuator that is attached to one"),
    required<&PostureAngle::value>("value", "rad (m)", "where it stands in this posture"),
};
constexpr Element<PostureAngle> angleElement{"angle", "the value of one joint or actuator", angleAttributes};

constexpr Attribute<PostureConfig> attributes[] = {
    named<&PostureConfig::name>("name", names::ofPosture,
                                "what the posture is called; `StandInit` is where the joints start"),
};
constexpr Child<PostureConfig> children[] = {childrenOf<&PostureConfig::angles, angleElement>()};

}  // namespace

constexpr Element<PostureConfig> postureElement{"posture", "joint values that belong together", attributes, children};

}  // namespace Varo::Model::Native
