#ifndef VARO_CORE_LINK_INDEX_HPP
#define VARO_CORE_LINK_INDEX_HPP

#include <mutex>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "sim/link.hpp"
#include "varo/model/name_hash.hpp"

namespace Sim {

/// Links by name and, where no link bears that, by what the description calls them. Made when somebody first asks, in
/// whichever thread: most programs never do.
class LinkIndex {
public:
    /// The first of `links`, which are always the same, of that name; null when there is none.
    Link const* find(std::string_view name, std::vector<boost::shared_ptr<Link>> const& links) const
    {
        std::call_once(_isMade, [&] { make(links); });
        auto const found = _byName.find(name);
        return found == _byName.end() ? nullptr : found->second;
    }

private:
    void make(std::vector<boost::shared_ptr<Link>> const& links) const
    {
        _byName.reserve(2 * links.size());
        for (auto const& link : links) {
            _byName.try_emplace(link->name(), link.get());
        }
        for (auto const& link : links) {
            _byName.try_emplace(link->descriptionName(), link.get());
        }
    }

    mutable std::once_flag _isMade;
    // The links keep the names alive.
    mutable std::unordered_map<std::string_view, Link const*, Varo::Model::NameHash> _byName;
};

}  // namespace Sim

#endif
