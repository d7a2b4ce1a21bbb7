#ifndef VARO_MODEL_ROBOT_SIDE_CANDIDATES_HPP
#define VARO_MODEL_ROBOT_SIDE_CANDIDATES_HPP

#include <cstddef>
#include <cstdint>
#include <vector>

#include "varo/model/name_index.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// Two joints, by their indices in the order of the text, that might be counterparts.
struct SideCandidate {
    std::size_t first;
    std::size_t second;
    bool isStated;  ///< whether the text says that they mirror each other
    bool isMarked;  ///< whether words of their names say so, not letters alone
};

/// What names and the text say of left and right, before anything is known of places.
struct SideCandidates {
    std::vector<SideCandidate> all;
    std::vector<std::uint32_t> counts;  ///< by joint, of how many of them it is one
    std::vector<bool> isMarked;  ///< by joint, whether a name says the side in words
    std::vector<std::size_t> alone;  ///< joints whose name says a side, and whose counterpart the text lacks

    /// Whether names leave no other choice than this one.
    bool isOnly(SideCandidate const& candidate) const
    {
        return counts[candidate.first] == 1 && counts[candidate.second] == 1;
    }
};

/// In time that grows linearly with the number of joints. `joints` is the index of their table.
SideCandidates findSideCandidates(Records const& records, NameIndex const& joints);

}  // namespace Varo::Model

#endif
