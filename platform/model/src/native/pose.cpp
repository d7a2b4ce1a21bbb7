#include "native/pose.hpp"

#include <array>
#include <cmath>
#include <cstring>

#include "varo/math/rpy.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

constexpr Attribute<Pose> attributes[] = {
    optional<&Pose::xyz>("xyz", "0 0 0", "m", "position of the placed frame's origin"),
    optional<&Pose::rpy>("rpy", "0 0 0", "rad",
                         "orientation of the placed frame: roll about x, then pitch about y, then yaw about z, all "
                         "about the fixed axes of the frame that it is placed in"),
    optional<&Pose::matrix>("matrix", "1 0 0 0  0 1 0 0  0 0 1 0", "1, m",
                            "the whole pose instead of `xyz` and `rpy`, exactly: the upper three rows of the "
                            "homogeneous matrix, row by row"),
};

bool saysPoseTwice(Pose const& /*pose*/, XmlNode node)
{
    return node.attribute("matrix") && (node.attribute("xyz") || node.attribute("rpy"));
}

constexpr Rule<Pose> rules[] = {
    {"matrix",
     saysPoseTwice,
     {&codes::conflictingAttributes, "A matrix says the whole pose, so that xyz and rpy cannot stand beside it.",
      "Write either the matrix or the other two."}},
};

constexpr Element<Pose> poseElement(std::string_view name, std::string_view meaning)
{
    return {name, meaning, attributes, {}, rules};
}

}  // namespace

bool sameBits(Transform const& a, Transform const& b)
{
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): 0 and -0 are to differ
    return std::memcmp(a.rows().data(), b.rows().data(), sizeof a.rows()) == 0;
}

constexpr Element<Pose> jointPlacementElement =
    poseElement("placement", "the joint's frame at zero position, in the frame of the joint (or root) before it");
constexpr Element<Pose> jointEndElement =
    poseElement("end", "the frame of the body (link) that the joint moves, in the joint's frame");
constexpr Element<Pose> chainPlacementElement =
    poseElement("placement", "the chain's base frame, in the frame of the chain's parent joint (or root)");
constexpr Element<Pose> tipPlacementElement =
    poseElement("tipPlacement",
                "the chain's tool frame, in the link frame of its last joint; carried for the programs that use it");
constexpr Element<Pose> devicePlacementElement =
    poseElement("placement", "the device's frame, in the frame of its parent joint");
constexpr Element<Pose> sensorPlacementElement = poseElement(
    "placement", "the sensor's frame, in the link frame of its parent (of the root, when it is attached to that)");
constexpr Element<Pose> subJointPlacementElement = poseElement(
    "placement", "the sub-joint's frame at zero position, in the frame of the joint or sub-joint before it");

namespace {

Transform compose(Position3D const& xyz, Position3D const& rpy)
{
    std::array<float, 12> rows = Transform::fromRpy(rpy.x, rpy.y, rpy.z).rows();
    // Adding 0 keeps -0 out, as multiplying by a rotation does.
    rows[3] = xyz.x + 0.0F;
    rows[7] = xyz.y + 0.0F;
    rows[11] = xyz.z + 0.0F;
    return Transform::fromRows(rows);
}

/// Roll, pitch and yaw of a rotation in the ways that people state them: the pitch within a quarter turn, beyond it,
/// and with no roll, for when roll and yaw turn about the same axis.
std::array<Math::Rpy, 3> anglesOf(Transform const& transform)
{
    constexpr double halfTurn = 3.14159265358979323846;
    auto const opposite = [](double angle) { return angle - std::copysign(halfTurn, angle); };
    Math::Rpy const within = Math::rpyOf(transform);
    Math::Rpy const beyond = {opposite(within.roll), -opposite(within.pitch), opposite(within.yaw)};
    return {within, beyond, Math::rpyWithoutRoll(transform)};
}

float roundedTo(double scale, double value)
{
    return static_cast<float>(std::round(value * scale) / scale);
}

/// Finds angles of at most seven decimals, the fewer the better, with which `compose` gives exactly the transform.
bool findAngles(Transform const& transform, Position3D& rpy)
{
    auto const ways = anglesOf(transform);
    for (double const scale : {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7}) {
        for (auto const& [roll, pitch, yaw] : ways) {
            // Adding 0 keeps a rounded angle from being -0.
            rpy = {roundedTo(scale, roll) + 0.0F, roundedTo(scale, pitch) + 0.0F, roundedTo(scale, yaw) + 0.0F};
            if (sameBits(transform, compose(transform.position(), rpy))) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

Transform readPose(ElementReader& reader, Element<Pose> const& element, XmlNode node)
{
    Pose pose;
    reader.read(element, node, pose);
    return node.attribute("matrix") ? Transform::fromRows(pose.matrix) : compose(pose.xyz, pose.rpy);
}

void writePose(ElementWriter& writer, Element<Pose> const& element, Transform const& transform)
{
    if (sameBits(transform, Transform())) {  // as most are
        return;
    }
    Pose pose;
    if (findAngles(transform, pose.rpy)) {
        pose.xyz = transform.position();
    } else {
        pose.rpy = {};
        pose.matrix = transform.rows();
    }
    writer.writeUnlessDefault(element, pose);
}

}  // namespace Varo::Model::Native
