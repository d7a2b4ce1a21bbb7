#ifndef VARO_CORE_BUILD_INDEX_HPP
#define VARO_CORE_BUILD_INDEX_HPP

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "varo/model/name_index.hpp"

// Elements by name, for as long as a model is being built: the model's own look-ups are linear scans, and building must
// stay linear as a whole.
namespace Sim {

/// As in the look-ups, the first element of a name answers, and an unknown name gives an empty pointer.
template <class T>
class FirstByName {
public:
    /// Of those in the registry, which must outlive this.
    explicit FirstByName(std::vector<boost::shared_ptr<T>> const& registry) : _registry(&registry)
    {
        _numbers.reserve(registry.capacity());
        for (std::size_t number = 0; number < registry.size(); ++number) {
            add(number);
        }
    }

    /// The element that was registered last.
    void addLast() { add(_registry->size() - 1); }

    bool contains(std::string_view name) const { return _numbers.contains(name); }

    boost::shared_ptr<T> const& find(std::string_view name)
    {
        static boost::shared_ptr<T> const nothing;
        std::uint32_t const number = _numbers.find(name, _next);
        return number == Varo::Model::NameIndex::none ? nothing : (*_registry)[number];
    }

private:
    void add(std::size_t number) { _numbers.add((*_registry)[number]->name(), static_cast<std::uint32_t>(number)); }

    std::vector<boost::shared_ptr<T>> const* _registry;
    Varo::Model::NameIndex _numbers;  // the elements keep the names alive
    std::uint32_t _next = 0;  // elements are mostly looked for in their order
};

class BuildIndex {
public:
    BuildIndex(std::vector<boost::shared_ptr<Joint>> const& allJoints,
               std::vector<boost::shared_ptr<Link>> const& allLinks)
        : joints(allJoints), links(allLinks)
    {}

    /// The link of the name that models give to what a joint of that name moves, whether or not there is such a joint.
    boost::shared_ptr<Link> const& linkCalledAfter(std::string const& joint)
    {
        _linkName.assign(joint).append("Link");
        return links.find(_linkName);
    }

    FirstByName<Joint> joints;
    FirstByName<Link> links;
    std::uint32_t nextJoint = 0;  ///< in the motion model: joints are mostly attached in their order

private:
    std::string _linkName;  ///< so that looking for one takes no memory
};

}  // namespace Sim

#endif
