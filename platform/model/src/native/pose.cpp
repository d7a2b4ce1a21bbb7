#include "native/pose.hpp"

#include <array>

namespace Varo::Model::Native {

namespace {

struct Pose {
    Position3D xyz;
    Position3D rpy;
    std::array<float, 12> matrix = Transform().rows();
};

constexpr Attribute attributes[] = {
    optional<&Pose::xyz>("xyz", "0 0 0", "m", "position of the placed frame's origin"),
    optional<&Pose::rpy>("rpy", "0 0 0", "rad",
                         "orientation of the placed frame: roll about x, then pitch about y, then yaw about z, all "
                         "about the fixed axes of the frame that it is placed in"),
    optional<&Pose::matrix>("matrix", "1 0 0 0  0 1 0 0  0 0 1 0", "1, m",
                            "the whole pose instead of `xyz` and `rpy`, exactly: the upper three rows of the "
                            "homogeneous matrix, row by row"),
};

}  // namespace

Element const jointPlacementElement{
    "placement", "the joint's frame at zero position, in the frame of the joint (or root) before it", attributes};
Element const jointEndElement{"end", "the frame of the body (link) that the joint moves, in the joint's frame",
                              attributes};
Element const chainPlacementElement{
    "placement", "the chain's base frame, in the frame of the chain's parent joint (or root)", attributes};
Element const tipPlacementElement{
    "tipPlacement", "the chain's tool frame, in the link frame of its last joint; carried for the programs that use it",
    attributes};
Element const devicePlacementElement{"placement", "the device's frame, in the frame of its parent joint", attributes};
Element const sensorPlacementElement{
    "placement", "the sensor's frame, in the link frame of its parent (of the root, when it hangs on that)",
    attributes};
Element const subJointPlacementElement{
    "placement", "the sub-joint's frame at zero position, in the frame of the joint or sub-joint before it",
    attributes};

Transform readPose(ElementReader& reader, Element const& element, pugi::xml_node node)
{
    Pose pose;
    reader.read(element, node, &pose);
    if (!node.attribute("matrix")) {
        return Transform::fromPosition(pose.xyz.x, pose.xyz.y, pose.xyz.z) *
               Transform::fromRpy(pose.rpy.x, pose.rpy.y, pose.rpy.z);
    }
    if (node.attribute("xyz") || node.attribute("rpy")) {
        reader.diagnostics().report({node, "matrix"}, codes::conflictingAttributes,
                                    "A matrix says the whole pose, so that xyz and rpy cannot stand beside it.",
                                    "Write either the matrix or the other two.");
    }
    return Transform::fromRows(pose.matrix);
}

}  // namespace Varo::Model::Native
