#ifndef VARO_MODEL_ROBOT_LINK_TREE_HPP
#define VARO_MODEL_ROBOT_LINK_TREE_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "robot/cycles.hpp"
#include "robot/pose.hpp"
#include "robot/suggestions.hpp"
#include "robot/unique_names.hpp"
#include "varo/model/configs.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/name_index.hpp"

/// Links and joints as most dialects describe a robot, between the text and the records. A reader fills a LinkTree in
/// the order of the text, `connect` ties its parts together, and `addRecords` makes the records of it.
///
/// Names are views of what the reader parsed, which must outlive the tree.
namespace Varo::Model {

/// Magnitudes beyond it are refused: products of a few numbers up to here are still finite in single precision.
inline constexpr double largestNumber = 1e30;

/// A name by which a text refers to something, and where it stands; nowhere when the text does not state it.
struct Reference {
    std::string_view name;
    TextOffset offset;
};

struct Link {
    std::string_view name;
    TextOffset textOffset;  ///< of its element
    TextOffset nameOffset;
    std::size_t parentJoint = none;  ///< the joint that moves it; none for the root
};

/// That a joint follows another: its value is ratio * leader's value + offset.
struct Mimic {
    Reference leader;
    TextOffset textOffset;  ///< of its element; nowhere for a joint that mimics no other
    TextOffset offsetOffset;  ///< of what states the offset
    double ratio = 1.0;
    double offset = 0.0;  ///< rad or m
    std::size_t leaderJoint = none;  ///< the one that leads in the end: found out by `connect`
};

struct Joint {
    JointConfig config;  ///< complete but for what depends on other joints: placement and body
    TextOffset nameOffset;
    Reference parent;  ///< the parent link
    Reference child;
    Mimic mimic;
    Pose origin;  ///< of the child link in the frame of the parent link, at zero position
    Matrix axis = Pose().rotation;  ///< takes z to the axis of motion
    std::size_t parentLink = none;
    std::size_t childLink = none;

    bool moves() const { return isMoving(config.jointType); }
};

struct LinkTree {
    LinkTree() = default;
    LinkTree(LinkTree const&) = delete;
    LinkTree& operator=(LinkTree const&) = delete;

    std::vector<Link> links;
    std::vector<Joint> joints;
    TextOffset textOffset;  ///< of the robot's element
    // What follows is found out by `connect`, but for the body.
    std::size_t rootLink = none;
    JointConfig rootBody;  ///< the record of the root, with a name that no joint has
    NameIndex linkByName;
    NameIndex jointByName;
    UniqueNames names{jointByName};  ///< those of the joints and the root
    Suggestions suggestions;

    /// The name that is closest to one that is not there; empty when none is close, or when none is looked for any
    /// more.
    std::string_view closestLink(ClosestWord const& name);
    std::string_view closestJoint(ClosestWord const& name);
    std::string_view closestLink(std::string_view name) { return closestLink(ClosestWord(name)); }
    std::string_view closestJoint(std::string_view name) { return closestJoint(ClosestWord(name)); }

    /// The record that the link's body belongs to: that of the joint that moves it, or the root's.
    JointConfig& bodyOf(Link const& link)
    {
        return link.parentJoint == none ? rootBody : joints[link.parentJoint].config;
    }
    /// The joint that moves the parent link of a joint; none for the joints of the root.
    std::size_t jointBefore(Joint const& joint) const { return links[joint.parentLink].parentJoint; }
};

/// What the table has under the name, or none.
inline std::size_t find(NameIndex const& table, std::string_view name)
{
    std::uint32_t const found = table.find(name);
    return found == NameIndex::none ? none : found;
}

/// "Did you mean ...?", or nothing for an empty word.
std::string didYouMean(std::string_view word);

/// Ties links and joints to each other by their names, finds and names the root, and follows the mimics. Reports
/// whatever keeps links and joints from being one tree, save what only follows from another such finding; names and
/// references that the text does not state are for the reader to report.
void connect(LinkTree& tree, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
