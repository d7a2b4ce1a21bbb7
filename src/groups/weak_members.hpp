#ifndef VARO_GROUPS_WEAK_MEMBERS_HPP
#define VARO_GROUPS_WEAK_MEMBERS_HPP

#include <vector>

#include <boost/shared_ptr.hpp>

#include "core/element_ref.hpp"

namespace Sim {

/// The members of a group, which keeps none of them alive.
template <class T>
class WeakMembers {
public:
    explicit WeakMembers(std::vector<boost::shared_ptr<T>> const& members) : _members(members.begin(), members.end()) {}

    /// One for one, empty where a member is gone or never was.
    std::vector<boost::shared_ptr<T>> locked() const
    {
        std::vector<boost::shared_ptr<T>> result;
        result.reserve(_members.size());
        for (ElementRef<T> const& member : _members) {
            result.push_back(member.lock());
        }
        return result;
    }

private:
    std::vector<ElementRef<T>> _members;
};

}  // namespace Sim

#endif
