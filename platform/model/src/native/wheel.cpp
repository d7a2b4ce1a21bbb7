#include "native/body.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"
#include "native/shapes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

constexpr Attribute<WheelConfig> attributes[] = {
    named<&WheelConfig::name>("name", names::ofWheel, "what the wheel is called"),
    named<&WheelConfig::parentJoint>("parent", names::wheelParent, "the joint that the wheel is attached to"),
    meshRow<WheelConfig>,
    required<&WheelConfig::maxTorque>("maxTorque", "N*m", "greatest torque of the wheel's motor"),
    required<&WheelConfig::maxVelocity>("maxVelocity", "rad/s", "greatest speed of the wheel"),
};
constexpr Child<WheelConfig> children[] = {
    poseChild<&WheelConfig::placement, devicePlacementElement>(),
    massChild<WheelConfig>,
    visualChild<WheelConfig>,
    collisionChild<WheelConfig>,
    freeAttributeChild<WheelConfig>,
};

bool lacksMaterial(WheelConfig const& wheel, XmlNode /*node*/)
{
    return wheel.attributes.find("material") == wheel.attributes.end();
}

constexpr Rule<WheelConfig> rules[] = {
    {"",
     lacksMaterial,
     {&codes::missingMaterial, "The wheel says no material, without which no model can be built.",
      "Add <attribute name=\"material\" value=\"rubber\"/> or the like."}},
};

}  // namespace

constexpr Element<WheelConfig> wheelElement{"wheel", "a driven wheel, which turns about the x axis of its link",
                                            attributes, children, rules};

}  // namespace Varo::Model::Native
