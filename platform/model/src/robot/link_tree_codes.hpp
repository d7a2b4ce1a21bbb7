#ifndef VARO_MODEL_ROBOT_LINK_TREE_CODES_HPP
#define VARO_MODEL_ROBOT_LINK_TREE_CODES_HPP

#include "varo/model/finding.hpp"

/// The kinds of findings about links and joints, in any dialect that describes robots by those.
namespace Varo::Model::codes {

inline constexpr FindingCode notANumber{"not-a-number", Severity::error,
                                        "A text that must be a number is none, or is beyond all bounds."};
inline constexpr FindingCode duplicateName{"duplicate-name", Severity::error,
                                           "Two links, or two joints, have the same name."};
inline constexpr FindingCode noLink{"no-link", Severity::error, "The robot has no link that could be its root."};
inline constexpr FindingCode severalRoots{"several-roots", Severity::error,
                                          "More than one link is the child of no joint, so that there is no one root."};
inline constexpr FindingCode unattachedJoint{"unattached-joint", Severity::error,
                                             "A joint does not say what its parent or its child link is."};
inline constexpr FindingCode unknownLink{"unknown-link", Severity::error, "A joint names a link that does not exist."};
inline constexpr FindingCode twoParents{"two-parents", Severity::error, "A link is the child of two joints."};
inline constexpr FindingCode jointCycle{"joint-cycle", Severity::error, "Joints lead from a link back to itself."};
inline constexpr FindingCode unknownLeader{
    "unknown-leader", Severity::warning,
    "A joint mimics one that does not exist, or does not say which: it moves on its own."};
inline constexpr FindingCode mimicCycle{"mimic-cycle", Severity::error,
                                        "A joint mimics itself, be it by way of others."};

inline constexpr FindingCode mimicOffset{"mimic-offset", Severity::note,
                                         "The zero pose of the model leaves the offsets of mimics out."};
inline constexpr FindingCode frozenLeader{"frozen-leader", Severity::warning, "A joint mimics one that does not move."};
inline constexpr FindingCode renamed{"renamed", Severity::warning,
                                     "A name that is already taken gets a number appended."};

inline constexpr FindingCode frozenMimic{"frozen-mimic", Severity::note,
                                         "Mimics of joints that do not move mean nothing."};

/// In the order of the documentation.
inline constexpr FindingCode const* ofLinkTrees[] = {
    &notANumber, &duplicateName, &noLink,     &severalRoots, &unattachedJoint, &unknownLink, &twoParents,
    &jointCycle, &unknownLeader, &mimicCycle, &mimicOffset,  &frozenLeader,    &renamed,     &frozenMimic,
};

}  // namespace Varo::Model::codes

#endif
