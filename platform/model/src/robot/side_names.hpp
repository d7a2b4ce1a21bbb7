#ifndef VARO_MODEL_ROBOT_SIDE_NAMES_HPP
#define VARO_MODEL_ROBOT_SIDE_NAMES_HPP

#include <string>
#include <string_view>
#include <vector>

namespace Varo::Model {

/// What a name says of left and right.
struct SideNames {
    std::vector<std::string> others;  ///< names that the counterpart on the other side may have, the likeliest first
    /// Whether words say the side: "left", "L", or "FL" for front left. Otherwise the first or the last letter might,
    /// which means something only where both names occur and the geometry agrees.
    bool areMarked = false;
};

SideNames otherSideOf(std::string_view name);

enum class Side { unknown, left, right };

/// The side that all words of a name say that say one.
Side sideOf(std::string_view name);

/// What the names of all limbs of one kind share: neither left nor right, neither front nor rear.
std::string withoutSides(std::string_view name);

}  // namespace Varo::Model

#endif
