#ifndef VARO_MODEL_NAME_INDEX_HPP
#define VARO_MODEL_NAME_INDEX_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "varo/model/hash_slots.hpp"
#include "varo/model/name_hash.hpp"

namespace Varo::Model {

/// Numbers by name: a flat hash table, for tens of thousands of names that are added once and looked for often.
/// Whoever adds a name keeps its text alive. Looking for names from several threads is safe while nobody adds any.
class NameIndex {
public:
    /// The number of a name that has none.
    static constexpr std::uint32_t none = HashSlots::none;

    /// Makes room for so many names.
    void reserve(std::size_t names)
    {
        _entries.reserve(names);
        _slots.reserve(names, _entries);
    }

    /// Gives the name the number, unless it has one. Answers the number that it has now.
    std::uint32_t add(std::string_view name, std::uint32_t number)
    {
        if (isNext(name, _next)) {
            return _entries[_next++].number;
        }
        std::uint32_t const hash = hashOf(name);
        std::uint32_t& slot = _slots.slotFor(hash, _entries, [name](Entry const& entry) { return entry.name == name; });
        if (slot == none) {
            slot = static_cast<std::uint32_t>(_entries.size());
            Entry& entry = _entries.emplace_back();  // filled in place, which is faster than a copy
            entry.name = name;
            entry.hash = hash;
            entry.number = number;
        }
        _next = slot + 1;
        return _entries[slot].number;
    }

    /// The number of the name, or none.
    std::uint32_t find(std::string_view name) const
    {
        std::uint32_t const entry = entryOf(name);
        return entry == none ? none : _entries[entry].number;
    }

    /// The same, for those who look for one name after the other in the order in which they were added, or nearly so:
    /// `next`, at first 0, says which one is looked at first, and is kept by the caller.
    std::uint32_t find(std::string_view name, std::uint32_t& next) const
    {
        std::uint32_t const entry = isNext(name, next) ? next : entryOf(name);
        if (entry == none) {
            return none;
        }
        next = entry + 1;
        return _entries[entry].number;
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

    bool isNext(std::string_view name, std::uint32_t next) const
    {
        return next < _entries.size() && _entries[next].name == name;
    }

    std::uint32_t entryOf(std::string_view name) const
    {
        return _entries.empty()
                   ? none
                   : _slots.find(hashOf(name), _entries, [name](Entry const& entry) { return entry.name == name; });
    }

    std::vector<Entry> _entries;
    HashSlots _slots;
    std::uint32_t _next = 0;  ///< behind the one that was added last
};

}  // namespace Varo::Model

#endif
