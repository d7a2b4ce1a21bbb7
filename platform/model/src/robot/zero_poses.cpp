#include "robot/zero_poses.hpp"

#include <string_view>

#include "robot/grouped.hpp"
#include "robot/link_tree.hpp"
#include "varo/model/name_index.hpp"

namespace Varo::Model {

namespace {

/// What the chains say of a joint's place.
struct Attachment {
    bool isStated = false;
    std::size_t before = none;
    Pose base;  ///< of the chain, for its first joint
};

void attach(ChainConfig const& chain, std::string_view root, NameIndex const& index,
            std::vector<Attachment>& attachments)
{
    std::size_t const parent = find(index, chain.parentJoint);
    Attachment attachment = {parent != none || chain.parentJoint == root, parent, fromTransform(chain.placement)};
    for (std::string const& name : chain.jointNames) {
        std::size_t const joint = find(index, name);
        if (joint == none) {
            return;
        }
        attachments[joint] = attachment;
        attachment = {attachment.isStated, joint, {}};
    }
}

/// The joints that chains lead to, none before the one that it is attached to. Those that are attached to each other
/// in a cycle are not among them.
std::vector<std::size_t> outwardOrder(std::vector<Attachment> const& attachments)
{
    std::size_t const root = attachments.size();
    Grouped const children(root + 1, attachments.size(), [&](std::size_t joint) {
        std::size_t const before = attachments[joint].before;
        return !attachments[joint].isStated ? none : before == none ? root : before;
    });
    std::vector<std::size_t> order(children[root].begin(), children[root].end());
    order.reserve(attachments.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        auto const next = children[order[i]];
        order.insert(order.end(), next.begin(), next.end());
    }
    return order;
}

}  // namespace

NameIndex indexOf(Table<JointConfig> const& joints)
{
    NameIndex index;
    index.reserve(joints.size());
    for (std::size_t i = 0; i < joints.size(); ++i) {
        index.add(joints.nameOf(i), static_cast<std::uint32_t>(i));
    }
    return index;
}

std::vector<PlacedJoint> placeAtZero(Records const& records, NameIndex const& joints)
{
    std::vector<Attachment> attachments(records.joints.size());
    for (ChainConfig const& chain : records.chains) {
        attach(chain, records.root.name, joints, attachments);
    }
    std::vector<PlacedJoint> placed(records.joints.size());
    for (std::size_t const joint : outwardOrder(attachments)) {
        JointConfig const& config = records.joints[joint];
        auto const& [isStated, before, base] = attachments[joint];
        Pose const frame = (before == none ? Pose() : placed[before].frame) * base * fromTransform(config.placement);
        placed[joint] = {before, isStated, frame, frame * fromTransform(config.endTransform)};
    }
    return placed;
}

}  // namespace Varo::Model
