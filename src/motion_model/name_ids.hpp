#ifndef SIM_NAME_IDS_HPP
#define SIM_NAME_IDS_HPP

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string_view>
#include <vector>

namespace Sim {

/// Numbers names from 0 on, in the order in which they are added. A flat hash table, for tens of thousands of names
/// that are added once and looked for often. Whoever adds a name keeps its text alive.
class NameIds {
public:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    void reserve(std::size_t names)
    {
        _names.reserve(names);
        std::size_t slots = 16;
        while (slots < 2 * names) {
            slots *= 2;
        }
        rehash(slots);
    }

    /// The number of the name, which is a new one for a name that has none.
    std::uint32_t add(std::string_view name)
    {
        if (2 * (_names.size() + 1) > _slots.size()) {
            reserve(_names.size() + _names.size() / 2 + 8);
        }
        std::uint32_t& slot = _slots[slotOf(name)];
        if (slot == none) {
            slot = static_cast<std::uint32_t>(_names.size());
            _names.push_back(name);
        }
        return slot;
    }

    /// `none` for a name that was not added.
    std::uint32_t find(std::string_view name) const { return _slots.empty() ? none : _slots[slotOf(name)]; }

    std::size_t size() const { return _names.size(); }

private:
    /// Where the name stands, or would.
    std::size_t slotOf(std::string_view name) const
    {
        std::size_t const mask = _slots.size() - 1;
        std::size_t slot = std::hash<std::string_view>()(name) & mask;
        while (_slots[slot] != none && _names[_slots[slot]] != name) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    void rehash(std::size_t slots)
    {
        _slots.assign(slots, none);
        for (std::size_t id = 0; id < _names.size(); ++id) {
            _slots[slotOf(_names[id])] = static_cast<std::uint32_t>(id);
        }
    }

    std::vector<std::string_view> _names;
    std::vector<std::uint32_t> _slots;  ///< numbers by hash: a power of two of them, at most half of them in use
};

}  // namespace Sim

#endif
