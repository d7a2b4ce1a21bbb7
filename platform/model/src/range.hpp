#ifndef VARO_MODEL_RANGE_HPP
#define VARO_MODEL_RANGE_HPP

#include <cstddef>

namespace Varo::Model {

/// Items of a constant table, which outlives the range.
template <class Item>
class Range {
public:
    constexpr Range() = default;
    template <std::size_t count>
    constexpr Range(Item const (&items)[count])  // NOLINT(google-explicit-constructor): a table is a range
        : _items(items), _size(count)
    {}

    constexpr Item const* begin() const { return _items; }
    constexpr Item const* end() const { return _items + _size; }
    constexpr std::size_t size() const { return _size; }
    constexpr Item const& operator[](std::size_t index) const { return _items[index]; }

private:
    Item const* _items = nullptr;
    std::size_t _size = 0;
};

}  // namespace Varo::Model

#endif
