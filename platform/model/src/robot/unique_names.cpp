#include "robot/unique_names.hpp"

#include "robot/link_tree_codes.hpp"

namespace Varo::Model {

std::string UniqueNames::claim(std::string name, std::string_view owner, TextOffset place, Diagnostics& diagnostics)
{
    auto const [entry, isNew] = _taken.try_emplace(name, 1);
    if (isNew && !isAmongOthers(name)) {
        return name;
    }
    std::string free;
    do {
        free = name + "_" + std::to_string(++entry->second);
    } while (_taken.find(free) != _taken.end() || isAmongOthers(free));
    diagnostics.report(
        place, codes::renamed,
        "The name " + quoted(name) + " is taken; " + std::string(owner) + " is called " + quoted(free) + " instead.");
    _taken.emplace(free, 1);
    return free;
}

}  // namespace Varo::Model
