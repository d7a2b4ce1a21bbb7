#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "urdf/elements.hpp"
#include "urdf/numbers.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

enum class Motion { none, limited, unlimited, lost };

struct Kind {
    std::string_view name;
    JointType type;
    Motion motion;
};

constexpr Kind kinds[] = {
    {"revolute", revolute, Motion::limited},   {"continuous", revolute, Motion::unlimited},
    {"prismatic", prismatic, Motion::limited}, {"fixed", fixed, Motion::none},
    {"planar", fixed, Motion::lost},           {"floating", fixed, Motion::lost},
};

Kind readKind(pugi::xml_node node, Diagnostics& diagnostics)
{
    pugi::xml_attribute const type = node.attribute("type");
    for (Kind const& kind : kinds) {
        if (kind.name == type.value()) {
            return kind;
        }
    }
    diagnostics.report(at(node, type), codes::unknownJointType,
                       type ? "There is no joint type " + quoted(type.value()) + "." : "This joint has no type.",
                       "The types are revolute, continuous, prismatic, fixed, planar and floating.");
    return {"fixed", fixed, Motion::none};
}

void readAxis(pugi::xml_node node, pugi::xml_node element, Matrix& axis, Diagnostics& diagnostics)
{
    Vector const direction = readVector(element, "xyz", {1.0, 0.0, 0.0}, diagnostics);
    if (direction == Vector{0.0, 0.0, 0.0}) {
        diagnostics.report(at(element ? element : node, "xyz"), codes::zeroAxis,
                           "The axis of a moving joint cannot be zero.");
        return;
    }
    axis = rotationFromZ(direction);
}

/// The greatest effort or velocity; 0, as when none is stated, for one without bounds.
float readCapacity(pugi::xml_node limit, char const* attribute, Diagnostics& diagnostics)
{
    double const value = readLimit(limit, attribute, 1, diagnostics);
    if (std::isinf(value)) {
        diagnostics.report(at(limit, attribute), codes::unlimited,
                           "An infinite " + std::string(attribute) + " is kept as 0, which stands for not stated.");
        return 0.0F;
    }
    return static_cast<float>(value);
}

void readLimits(pugi::xml_node node, pugi::xml_node limit, Motion motion, JointConfig& config, Diagnostics& diagnostics)
{
    config.maxTorque = readCapacity(limit, "effort", diagnostics);
    config.maxAngularSpeed = readCapacity(limit, "velocity", diagnostics);
    config.minAngle = static_cast<float>(readLimit(limit, "lower", -1, diagnostics));
    config.maxAngle = static_cast<float>(readLimit(limit, "upper", 1, diagnostics));
    if (motion == Motion::unlimited) {  // whatever the limits are, as long as they are numbers
        config.minAngle = -std::numeric_limits<float>::infinity();
        config.maxAngle = std::numeric_limits<float>::infinity();
        return;
    }
    if (!limit) {
        diagnostics.report(at(node), codes::missingLimit, "This joint states no limits; it stays at 0.",
                           "Give it a limit element, or the type continuous.");
    }
    if (config.minAngle > config.maxAngle) {
        diagnostics.report(at(limit), codes::reversedLimits, "The lower limit is above the upper one.");
    }
}

/// The link that a child element of the joint names.
Reference readLink(pugi::xml_node joint, pugi::xml_node element, std::string const& role, Diagnostics& diagnostics)
{
    if (pugi::xml_attribute const link = element.attribute("link")) {
        return {link.value(), at(element, link)};
    }
    diagnostics.report(at(element ? element : joint), codes::unattachedJoint,
                       "This joint does not say which link is its " + role + ".",
                       "Write <" + role + " link=\"...\"/>.");
    return {};
}

/// The mimic of a joint that does not move means nothing, whatever its numbers are.
Mimic readMimic(pugi::xml_node node, bool moves, Diagnostics& diagnostics)
{
    Mimic mimic;
    if (node) {
        mimic.textOffset = at(node);
        mimic.leader = {node.attribute("joint").value(), at(node, "joint")};
        mimic.offsetOffset = at(node, "offset");
    }
    if (moves) {
        mimic.ratio = readNumber(node, "multiplier", 1.0, diagnostics);
        mimic.offset = readNumber(node, "offset", 0.0, diagnostics);
    }
    return mimic;
}

}  // namespace

Joint readJoint(pugi::xml_node node, Report const& report)
{
    Diagnostics& diagnostics = report.diagnostics;
    auto const [parent, child, origin, axis, limit, dynamics, mimic] =
        childrenOf<7>(node, {"parent", "child", "origin", "axis", "limit", "dynamics", "mimic"}, report);
    Kind const kind = readKind(node, diagnostics);
    Joint joint;
    joint.origin = readOrigin(origin, diagnostics);
    joint.config.name = readName(node, diagnostics);
    joint.nameOffset = at(node, "name");
    joint.config.jointType = kind.type;
    joint.config.hasMotor = !joint.isFixed();
    joint.config.textOffset = at(node);
    if (kind.motion == Motion::lost) {
        diagnostics.report(at(node, "type"), codes::jointFrozen,
                           "A " + std::string(kind.name) + " joint cannot be modelled; it is held where it is.");
    }
    if (!joint.isFixed()) {
        readAxis(node, axis, joint.axis, diagnostics);
        readLimits(node, limit, kind.motion, joint.config, diagnostics);
        joint.config.damping = static_cast<float>(readNumber(dynamics, "damping", 0.0, diagnostics));
        joint.config.friction = static_cast<float>(readNumber(dynamics, "friction", 0.0, diagnostics));
    }
    joint.mimic = readMimic(mimic, !joint.isFixed(), diagnostics);
    joint.parent = readLink(node, parent, "parent", diagnostics);
    joint.child = readLink(node, child, "child", diagnostics);
    return joint;
}

}  // namespace Varo::Model::Urdf
