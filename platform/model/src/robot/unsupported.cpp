#include "robot/unsupported.hpp"

#include <string>

#include "robot/link_tree_codes.hpp"

namespace Varo::Model {

void Unsupported::add(std::string_view parent, std::string_view name, TextOffset place)
{
    Kind& kind = _kinds.try_emplace({parent, name}, Kind{place}).first->second;
    ++kind.count;
}

void Unsupported::report(Diagnostics& diagnostics) const
{
    for (auto const& [names, kind] : _kinds) {
        auto const& [parent, element] = names;
        std::string message = "What " + quoted(element) + " in " + quoted(parent) + " says is not carried over";
        message += kind.count > 1 ? ", here and in " + std::to_string(kind.count - 1) + " more places." : ".";
        diagnostics.report(kind.first, codes::unsupported, std::move(message));
    }
}

}  // namespace Varo::Model
