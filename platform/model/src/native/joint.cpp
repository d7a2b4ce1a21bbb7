#include <set>
#include <string_view>
#include <utility>

#include "native/body.hpp"
#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

namespace {

/// What the joint record has no place for goes into the robot's own lists.
struct JointReading : JointConfig {
    bool reflectionForced = false;
};

struct JointTypes : OneOf<JointTypes> {
    static constexpr Word words[] = {{"revolute", revolute}, {"prismatic", prismatic}, {"fixed", fixed}};
    static constexpr ValueType type{"jointType", "a type of joint", words};
};

constexpr Attribute nameAttribute = required<&JointConfig::name, Name>("name", "", "what the element is called");
constexpr Attribute meshAttribute = optional<&JointConfig::meshName>("mesh", "", "", "mesh file of the body");
constexpr Attribute meshXyzAttribute =
    optional<&JointConfig::meshPosition>("meshXyz", "0 0 0", "m", "origin of the mesh, in the link frame; carried");
constexpr Attribute meshRpyAttribute = optional<&JointConfig::meshOrientation>(
    "meshRpy", "0 0 0", "rad", "roll, pitch and yaw of the mesh, in the link frame; carried");

constexpr Attribute jointAttributes[] = {
    nameAttribute,
    meshAttribute,
    meshXyzAttribute,
    meshRpyAttribute,
    required<&JointConfig::minAngle, LowerLimit>("min", "rad (m)", "smallest joint value, or `unlimited`"),
    required<&JointConfig::maxAngle, UpperLimit>("max", "rad (m)", "greatest joint value, or `unlimited`"),
    optional<&JointConfig::maxAngularSpeed>("maxSpeed", "0", "rad/s (m/s)", "greatest speed; 0 when not stated"),
    optional<&JointConfig::maxTorque>("maxTorque", "0", "N*m (N)",
                                      "greatest torque (force); 0 when not stated; carried"),
    optional<&JointConfig::damping>("damping", "0", "N*m*s/rad (N*s/m)", "viscous damping; carried"),
    optional<&JointConfig::friction>("friction", "0", "N*m (N)", "Coulomb friction; carried"),
    optional<&JointConfig::jointType, JointTypes>("type", "revolute", "", "how the joint moves; carried"),
    optional<&JointReading::reflectionForced, Boolean, JointConfig>(
        "reflectionForced", "false", "", "whether a symmetric motion reflects the joint whatever its mirror says"),
};
constexpr Child jointChildren[] = {
    poseChild<&JointConfig::placement>(jointPlacementElement),
    poseChild<&JointConfig::endTransform>(jointEndElement),
    massChild<JointConfig>,
    mirrorChild<JointConfig>,
    freeAttributeChild<JointConfig>,
};

constexpr Attribute rootAttributes[] = {nameAttribute, meshAttribute, meshXyzAttribute, meshRpyAttribute};
constexpr Child rootChildren[] = {massChild<JointConfig>, freeAttributeChild<JointConfig>};

}  // namespace

Element const rootElement{"root",         "the body that the tree of joints begins with",
                          rootAttributes, rootChildren,
                          nullptr,        uniqueFreeAttributes};
Element const jointElement{"joint",         "a joint together with the body (link) that it moves",
                           jointAttributes, jointChildren,
                           nullptr,         uniqueFreeAttributes};

void readJoint(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    JointReading joint;
    reader.read(element, node, static_cast<JointConfig*>(&joint));
    if (joint.minAngle > joint.maxAngle) {
        reader.diagnostics().report(at(node, "min"), codes::reversedLimits, "The limit min is greater than max.");
    }
    auto& robot = *static_cast<Records*>(parent);
    if (joint.reflectionForced) {
        robot.reflectionForced.push_back(joint.name);
    }
    joint.bodyOffset = at(node);
    reader.define(NameIndex::joint, robot.joints, static_cast<JointConfig&&>(joint), node);
}

void readRoot(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    auto& root = static_cast<Records*>(parent)->root;
    reader.read(element, node, &root);
    root.textOffset = at(node);
    root.bodyOffset = at(node);
    if (root.name.empty()) {
        reader.loseDefinition();
    }
}

void writeJoints(ElementWriter& writer, Element const& element, void const* parent)
{
    auto const& robot = *static_cast<Records const*>(parent);
    std::set<std::string_view> const forced(robot.reflectionForced.begin(), robot.reflectionForced.end());
    for (JointConfig const& config : robot.joints) {
        JointReading const joint = {config, forced.find(config.name) != forced.end()};
        writer.write(element, static_cast<JointConfig const*>(&joint));
    }
}

void writeRoot(ElementWriter& writer, Element const& element, void const* parent)
{
    writer.write(element, &static_cast<Records const*>(parent)->root);
}

}  // namespace Varo::Model::Native
