#ifndef VARO_MODEL_ROBOT_CYCLES_HPP
#define VARO_MODEL_ROBOT_CYCLES_HPP

#include <cstddef>
#include <vector>

namespace Varo::Model {

/// An index that points to nothing.
inline constexpr std::size_t none = static_cast<std::size_t>(-1);

/// The members of one cycle: first the one of the lowest index, then its parent, that one's parent, and so on.
using Cycle = std::vector<std::size_t>;

/// The cycles among things each of which has one parent at most: `parents` has the index of each thing's parent, or
/// `none`. Each cycle comes once; what merely leads into a cycle is no member. Takes time linear in the number of
/// things.
///
///     for (Cycle const& cycle : findCycles(parents)) {
///         diagnostics.report(at(elements[cycle.front()], "parent"), ...);  // at the first in the text
///     }
std::vector<Cycle> findCycles(std::vector<std::size_t> const& parents);

/// The same things, each behind its parent. There must be no cycles among them.
std::vector<std::size_t> parentsFirst(std::vector<std::size_t> const& parents);

}  // namespace Varo::Model

#endif
