#include "robot/tree_records.hpp"

#include <utility>

#include "robot/chains.hpp"
#include "robot/couplings.hpp"

namespace Varo::Model {

namespace {

/// A joint turns about the z axis of its own frame. That frame is therefore turned from the child link's, and the end
/// transform turns back, so that link frames are where the text says. What follows is placed in the turned frame.
void placeJoints(LinkTree& tree)
{
    for (Joint& joint : tree.joints) {
        Pose const turn = {joint.axis, {}};
        std::size_t const before = tree.jointBefore(joint);
        Pose const end = before == none ? Pose() : inverse({tree.joints[before].axis, {}});
        joint.config.placement = toTransform(end * joint.origin * turn);
        joint.config.endTransform = toTransform(inverse(turn));
    }
}

}  // namespace

void addRecords(LinkTree&& tree, Records& robot, Diagnostics& diagnostics)
{
    ChildJoints const children = childJointsOf(tree);
    robot.chains = makeChains(tree, children);
    addCouplings(tree, buildingOrder(tree, children), robot, diagnostics);
    placeJoints(tree);
    robot.root = std::move(tree.rootBody);
    robot.joints.reserve(tree.joints.size());
    for (Joint& joint : tree.joints) {
        robot.joints.add(std::move(joint.config));
    }
}

}  // namespace Varo::Model
