#ifndef VARO_MODEL_SHORT_LISTS_HPP
#define VARO_MODEL_SHORT_LISTS_HPP

#include <cstdint>
#include <limits>
#include <vector>

namespace Varo::Model {

/// Many lists in one vector: most are empty or hold one item, and a vector for each would be mostly overhead.
template <typename Item>
class ShortLists {
    struct Node {
        Item item;
        std::uint32_t next;
    };

public:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// Which of the lists: a plain value, for an empty list at first.
    struct List {
        std::uint32_t first = none;
        std::uint32_t last = none;
    };

    /// The items of one list, in the order in which they were added.
    class Items {
    public:
        class Iterator {
        public:
            Iterator(std::vector<Node> const& nodes, std::uint32_t at) : _nodes(&nodes), _at(at) {}
            Item const& operator*() const { return (*_nodes)[_at].item; }
            Iterator& operator++() { return _at = (*_nodes)[_at].next, *this; }
            bool operator!=(Iterator const& other) const { return _at != other._at; }

        private:
            std::vector<Node> const* _nodes;
            std::uint32_t _at;
        };

        Items(std::vector<Node> const& nodes, std::uint32_t first) : _nodes(&nodes), _first(first) {}
        Iterator begin() const { return {*_nodes, _first}; }
        Iterator end() const { return {*_nodes, none}; }
        bool empty() const { return _first == none; }
        Item const& front() const { return *begin(); }

    private:
        std::vector<Node> const* _nodes;
        std::uint32_t _first;
    };

    void reserve(std::size_t items) { _nodes.reserve(items); }
    Items of(List list) const { return {_nodes, list.first}; }
    /// The last item of a list that has some.
    Item const& lastOf(List list) const { return _nodes[list.last].item; }
    void append(List& list, Item const& item)
    {
        auto const index = static_cast<std::uint32_t>(_nodes.size());
        _nodes.push_back({item, none});
        (list.first == none ? list.first : _nodes[list.last].next) = index;
        list.last = index;
    }

private:
    std::vector<Node> _nodes;
};

}  // namespace Varo::Model

#endif
