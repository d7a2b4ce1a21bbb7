#ifndef VARO_KINEMATICS_UNKNOWN_NAME_HPP
#define VARO_KINEMATICS_UNKNOWN_NAME_HPP

#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "varo/model/diagnostics.hpp"
#include "varo/model/spelling.hpp"

namespace Sim {

using Varo::Model::quoted;

/// Says what a name was to be, and which of the known names was probably meant: those of the entries, as `nameOf` gives
/// them.
template <class Entries, class NameOf>
std::invalid_argument unknownName(std::string const& what, std::string const& name, Entries const& known,
                                  NameOf const& nameOf)
{
    std::set<std::string_view> inOrder;  // so that of several that are as close always the same one is meant
    for (auto const& entry : known) {
        inOrder.insert(nameOf(entry));
    }
    Varo::Model::ClosestWord closest(name);
    for (std::string_view const each : inOrder) {
        closest.offer(each);
    }
    std::string const word(closest.word());
    return std::invalid_argument("There is no " + what + " " + quoted(name) + "." +
                                 (word.empty() ? "" : " Did you mean " + quoted(word) + "?"));
}

}  // namespace Sim

#endif
