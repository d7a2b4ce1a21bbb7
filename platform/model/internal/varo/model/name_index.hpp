#ifndef VARO_MODEL_NAME_INDEX_HPP
#define VARO_MODEL_NAME_INDEX_HPP

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "varo/model/name_hash.hpp"

namespace Varo::Model {

/// Numbers by name: a flat hash table, for tens of thousands of names that are added once and looked for often.
/// Whoever adds a name keeps its text alive. Looking for names from several threads is safe while nobody adds any.
class NameIndex {
public:
    /// The number of a name that has none.
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// Makes room for so many names.
    void reserve(std::size_t names)
    {
        _entries.reserve(names);
        std::size_t slots = 16;
        while (slots < 2 * names) {
            slots *= 2;
        }
        if (slots > _slots.size()) {
            rehash(slots);
        }
    }

    /// Gives the name the number, unless it has one. Answers the number that it has now.
    std::uint32_t add(std::string_view name, std::uint32_t number)
    {
        if (2 * (_entries.size() + 1) > _slots.size()) {
            reserve(_entries.size() + _entries.size() / 2 + 8);
        }
        std::uint32_t const hash = hashOf(name);
        std::uint32_t& slot = _slots[slotOf(name, hash)];
        if (slot == none) {
            slot = static_cast<std::uint32_t>(_entries.size());
            _entries.push_back({name, hash, number});
        }
        return _entries[slot].number;
    }

    /// The number of the name, or none.
    std::uint32_t find(std::string_view name) const
    {
        std::uint32_t const slot = _slots.empty() ? none : _slots[slotOf(name, hashOf(name))];
        return slot == none ? none : _entries[slot].number;
    }

    /// Whether the name has a number.
    bool contains(std::string_view name) const { return find(name) != none; }
    /// How many names there are.
    std::size_t size() const { return _entries.size(); }

    /// As NameHash, cut.
    static std::uint32_t hashOf(std::string_view name)
    {
        return static_cast<std::uint32_t>(Model::hashOf(name, hashSecret));
    }

private:
    struct Entry {
        std::string_view name;
        std::uint32_t hash;
        std::uint32_t number;
    };

    /// Where the name stands, or would.
    std::size_t slotOf(std::string_view name, std::uint32_t hash) const
    {
        std::size_t const mask = _slots.size() - 1;
        std::size_t slot = hash & mask;
        while (_slots[slot] != none && !isAt(_slots[slot], name, hash)) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }
    bool isAt(std::uint32_t entry, std::string_view name, std::uint32_t hash) const
    {
        return _entries[entry].hash == hash && _entries[entry].name == name;
    }

    void rehash(std::size_t slots)
    {
        _slots.assign(slots, none);
        for (std::size_t entry = 0; entry < _entries.size(); ++entry) {
            _slots[slotOf(_entries[entry].name, _entries[entry].hash)] = static_cast<std::uint32_t>(entry);
        }
    }

    std::vector<Entry> _entries;
    std::vector<std::uint32_t> _slots;  ///< indices of entries by hash: a power of two, at most half of them in use
};

}  // namespace Varo::Model

#endif
