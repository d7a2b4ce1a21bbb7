#ifndef VARO_MODEL_ROBOT_SUGGESTIONS_HPP
#define VARO_MODEL_ROBOT_SUGGESTIONS_HPP

#include <cstddef>
#include <string_view>

#include "varo/model/spelling.hpp"

namespace Varo::Model {

/// Finds the names that were probably meant by those that nothing is called by, with a bound on the work for one text:
/// in very large texts the first findings use it up.
class Suggestions {
public:
    /// The one of `items` whose name is closest; null when none is close, and when too much was compared before. Items
    /// that `nameOf` gives no name are not meant.
    template <class Items, class NameOf>
    auto closest(Items& items, NameOf const& nameOf, std::string_view written) -> decltype(&*items.begin())
    {
        return closest(items, nameOf, ClosestWord(written));
    }
    /// The same for a word that comes with its own greatest distance.
    template <class Items, class NameOf>
    auto closest(Items& items, NameOf const& nameOf, ClosestWord closest) -> decltype(&*items.begin())
    {
        decltype(&*items.begin()) meant = nullptr;
        std::size_t const looks = items.size() * workOfLook;
        for (auto& item : items) {
            if (closest.work() + looks >= _workLeft) {
                _workLeft = 0;
                return nullptr;  // not one that happens to come first
            }
            std::string_view const name = nameOf(item);
            if (!name.empty() && closest.offer(name)) {
                meant = &item;
            }
        }
        _workLeft -= closest.work() + looks;
        return meant;
    }

private:
    /// To fetch a name from memory takes about as long as to compare so many pairs of letters.
    static constexpr std::size_t workOfLook = 32;

    std::size_t _workLeft = 30'000'000;  ///< pairs of letters
};

}  // namespace Varo::Model

#endif
