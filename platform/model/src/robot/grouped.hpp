#ifndef VARO_MODEL_ROBOT_GROUPED_HPP
#define VARO_MODEL_ROBOT_GROUPED_HPP

#include <cstddef>
#include <utility>
#include <vector>

#include "robot/cycles.hpp"

namespace Varo::Model {

/// Indices by the group that they belong to, in ascending order: all of them in one array, since a vector for each
/// group would be mostly overhead.
class Grouped {
public:
    class Group {
    public:
        Group(std::size_t const* begin, std::size_t const* end) : _begin(begin), _end(end) {}
        std::size_t const* begin() const { return _begin; }
        std::size_t const* end() const { return _end; }
        std::size_t size() const { return static_cast<std::size_t>(_end - _begin); }
        bool empty() const { return _begin == _end; }
        std::size_t front() const { return *_begin; }

    private:
        std::size_t const* _begin;
        std::size_t const* _end;
    };

    /// `groupOf` says of each index below `size` to which of the groups it belongs, or none.
    template <class GroupOf>
    Grouped(std::size_t groups, std::size_t size, GroupOf const& groupOf) : _ends(groups + 1)
    {
        for (std::size_t i = 0; i < size; ++i) {
            std::size_t const group = groupOf(i);
            _ends[group == none ? groups : group] += 1;
        }
        std::size_t before = 0;
        for (std::size_t& end : _ends) {  // for now where the group begins
            std::size_t const count = end;
            end = before;
            before += count;
        }
        _indices.resize(size);
        for (std::size_t i = 0; i < size; ++i) {
            std::size_t const group = groupOf(i);
            _indices[_ends[group == none ? groups : group]++] = i;
        }
    }

    Group operator[](std::size_t group) const
    {
        return {_indices.data() + (group == 0 ? 0 : _ends[group - 1]), _indices.data() + _ends[group]};
    }
    /// Puts one of the group's first; the others keep their order.
    void moveToFront(std::size_t group, std::size_t position)
    {
        std::size_t const first = group == 0 ? 0 : _ends[group - 1];
        for (std::size_t i = first + position; i > first; --i) {
            std::swap(_indices[i], _indices[i - 1]);
        }
    }

private:
    std::vector<std::size_t> _indices;
    std::vector<std::size_t> _ends;  ///< by group; those of none are the last
};

}  // namespace Varo::Model

#endif
