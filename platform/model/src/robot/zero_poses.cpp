#include "robot/zero_poses.hpp"

#include <string_view>
#include <unordered_map>

namespace Varo::Model {

namespace {

/// What the chains say of a joint's place.
struct Attachment {
    bool isStated = false;
    std::size_t before = none;
    Pose base;  ///< of the chain, for its first joint
};

using IndexByName = std::unordered_map<std::string_view, std::size_t>;

/// By name: tables need not be sorted yet.
IndexByName indexOf(Table<JointConfig> const& joints)
{
    IndexByName index;
    index.reserve(joints.size());
    for (std::size_t i = 0; i < joints.size(); ++i) {
        index.try_emplace(joints.nameOf(i), i);
    }
    return index;
}

void attach(ChainConfig const& chain, std::string_view root, IndexByName const& index,
            std::vector<Attachment>& attachments)
{
    auto const parent = index.find(chain.parentJoint);
    Attachment attachment = {parent != index.end() || chain.parentJoint == root,
                             parent == index.end() ? none : parent->second, fromTransform(chain.placement)};
    for (std::string const& name : chain.jointNames) {
        auto const joint = index.find(name);
        if (joint == index.end()) {
            return;
        }
        attachments[joint->second] = attachment;
        attachment = {attachment.isStated, joint->second, {}};
    }
}

std::vector<std::vector<std::size_t>> childrenOf(std::vector<Attachment> const& attachments)
{
    std::vector<std::vector<std::size_t>> children(attachments.size() + 1);  // those of the root last
    for (std::size_t joint = 0; joint < attachments.size(); ++joint) {
        std::size_t const before = attachments[joint].before;
        if (attachments[joint].isStated) {
            children[before == none ? attachments.size() : before].push_back(joint);
        }
    }
    return children;
}

}  // namespace

std::vector<PlacedJoint> placeAtZero(Records const& records)
{
    std::vector<Attachment> attachments(records.joints.size());
    IndexByName const index = indexOf(records.joints);
    for (ChainConfig const& chain : records.chains) {
        attach(chain, records.root.name, index, attachments);
    }
    std::vector<PlacedJoint> placed(records.joints.size());
    auto const children = childrenOf(attachments);
    std::vector<std::size_t> outward = children.back();
    for (std::size_t i = 0; i < outward.size(); ++i) {
        std::size_t const joint = outward[i];
        JointConfig const& config = records.joints[joint];
        auto const& [isStated, before, base] = attachments[joint];
        Pose const frame = (before == none ? Pose() : placed[before].frame) * base * fromTransform(config.placement);
        placed[joint] = {before, isStated, frame, frame * fromTransform(config.endTransform)};
        outward.insert(outward.end(), children[joint].begin(), children[joint].end());
    }
    return placed;
}

}  // namespace Varo::Model
