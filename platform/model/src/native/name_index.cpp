#include "native/name_index.hpp"

#include "spelling.hpp"
#include "varo/model/diagnostics.hpp"

namespace Varo::Model::Native {

unsigned NameIndex::kinds(std::string_view name) const
{
    auto const found = _kinds.find(name);
    return found == _kinds.end() ? 0 : found->second;
}

unsigned NameIndex::mark(std::string_view name, unsigned kinds)
{
    unsigned& all = _kinds[name];
    unsigned const before = all;
    all |= kinds;
    return before;
}

std::string NameIndex::suggestion(std::string_view written, unsigned kinds)
{
    if (_comparisonsLeft < _kinds.size()) {
        return {};
    }
    _comparisonsLeft -= _kinds.size();
    ClosestWord closest(written);
    for (auto const& [name, kindsOfName] : _kinds) {
        if ((kindsOfName & kinds) != 0) {
            closest.offer(name);
        }
    }
    return closest.word().empty() ? std::string() : "Did you mean " + quoted(closest.word()) + "?";
}

}  // namespace Varo::Model::Native
