#include "robot/unique_names.hpp"

#include "robot/link_tree_codes.hpp"

namespace Varo::Model {

std::string UniqueNames::claim(std::string name, std::string_view owner, TextOffset place, Diagnostics& diagnostics)
{
    std::size_t const takenBefore = _taken.size();
    std::size_t const index = take(name);
    if (index == takenBefore && !isAmongOthers(name)) {
        return name;
    }
    std::string free;
    do {
        free = name + "_" + std::to_string(++_taken[index].lastNumber);
    } while (isTaken(free) || isAmongOthers(free));
    diagnostics.report(
        place, codes::renamed,
        "The name " + quoted(name) + " is taken; " + std::string(owner) + " is called " + quoted(free) + " instead.");
    take(free);
    return free;
}

bool UniqueNames::isTaken(std::string_view name) const
{
    return _slots.find(NameIndex::hashOf(name), _taken, [name](Taken const& taken) { return taken.name == name; }) !=
           HashSlots::none;
}

std::size_t UniqueNames::take(std::string const& name)
{
    std::uint32_t const hash = NameIndex::hashOf(name);
    std::uint32_t& slot = _slots.slotFor(hash, _taken, [&name](Taken const& taken) { return taken.name == name; });
    if (slot == HashSlots::none) {
        slot = static_cast<std::uint32_t>(_taken.size());
        _taken.push_back({name, hash, 1});
    }
    return slot;
}

}  // namespace Varo::Model
