#include "motion_model/name_merge.hpp"

namespace Sim {

void NameMerge::add(std::list<std::string> incoming)
{
    auto higher = _peaks.begin();
    std::string_view greatest;
    while (!incoming.empty()) {
        auto const name = incoming.begin();
        if (greatest <= *name) {
            greatest = *name;
            higher = _peaks.upper_bound(greatest);
        }
        _merged.splice(higher == _peaks.end() ? _merged.end() : higher->second, incoming, name);
        if (greatest == *name) {
            _peaks.emplace_hint(higher, greatest, name);  // no change when an equal name stands before it
        }
    }
}

}  // namespace Sim
