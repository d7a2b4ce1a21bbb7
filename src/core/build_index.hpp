#ifndef VARO_CORE_BUILD_INDEX_HPP
#define VARO_CORE_BUILD_INDEX_HPP

#include <string_view>
#include <unordered_map>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "sim/joint.hpp"
#include "sim/link.hpp"

// Elements by name, for as long as a model is being built: the model's own look-ups are linear scans, and building must
// stay linear as a whole.
namespace Sim {

/// As in the look-ups, the first element of a name answers, and an unknown name gives an empty pointer.
template <class T>
class FirstByName {
public:
    FirstByName() = default;
    explicit FirstByName(std::vector<boost::shared_ptr<T>> const& elements)
    {
        _first.reserve(elements.size());
        for (auto const& element : elements) {
            add(element);
        }
    }

    void add(boost::shared_ptr<T> const& element) { _first.try_emplace(element->name(), element); }

    bool contains(std::string_view name) const { return _first.count(name) != 0; }

    boost::shared_ptr<T> find(std::string_view name) const
    {
        auto const found = _first.find(name);
        return found == _first.end() ? boost::shared_ptr<T>() : found->second;
    }

private:
    std::unordered_map<std::string_view, boost::shared_ptr<T>> _first;  // the elements keep the names alive
};

struct BuildIndex {
    FirstByName<Joint> joints;
    FirstByName<Link> links;
};

}  // namespace Sim

#endif
