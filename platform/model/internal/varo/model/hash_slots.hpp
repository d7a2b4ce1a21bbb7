#ifndef VARO_MODEL_HASH_SLOTS_HPP
#define VARO_MODEL_HASH_SLOTS_HPP

#include <cstddef>
#include <cstdint>
#include <limits>

#include <boost/container/small_vector.hpp>

namespace Varo::Model {

/// Finds entries of a list by their hashes, which the entries keep as `hash`. Entries are added behind the others, and
/// none is taken away. One look at a table of numbers and one at the entry: lists of any size are mostly out of the
/// caches.
class HashSlots {
public:
    /// In a slot that is free.
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// Makes room for so many entries; the list has those that were there before.
    template <class Entries>
    void reserve(std::size_t count, Entries const& entries)
    {
        std::size_t size = 16;
        while (size < 2 * count) {
            size *= 2;
        }
        if (size > _slots.size()) {
            _slots.assign(size, none);
            for (std::size_t entry = 0; entry < entries.size(); ++entry) {
                at(entries[entry].hash, [](std::uint32_t) { return false; }) = static_cast<std::uint32_t>(entry);
            }
        }
    }

    /// The slot that holds the index of the entry of that hash of which `isIt` is true. When there is none, a free one
    /// for the index that the entry will have.
    template <class Entries, class IsIt>
    std::uint32_t& slotFor(std::uint32_t hash, Entries& entries, IsIt const& isIt)
    {
        if (2 * (entries.size() + 1) > _slots.size()) {
            std::size_t const count = entries.size() + entries.size() / 2 + 8;
            entries.reserve(count);
            reserve(count, entries);
        }
        return at(hash, [&](std::uint32_t entry) { return entries[entry].hash == hash && isIt(entries[entry]); });
    }

    /// The index of that entry, or none.
    template <class Entries, class IsIt>
    std::uint32_t find(std::uint32_t hash, Entries const& entries, IsIt const& isIt) const
    {
        auto const isEntry = [&](std::uint32_t entry) { return entries[entry].hash == hash && isIt(entries[entry]); };
        return _slots.empty() ? none : _slots[indexFor(hash, isEntry)];
    }

private:
    template <class IsEntry>
    std::size_t indexFor(std::uint32_t hash, IsEntry const& isEntry) const
    {
        std::size_t const mask = _slots.size() - 1;
        std::size_t index = hash & mask;
        while (_slots[index] != none && !isEntry(_slots[index])) {
            index = (index + 1) & mask;
        }
        return index;
    }
    template <class IsEntry>
    std::uint32_t& at(std::uint32_t hash, IsEntry const& isEntry)
    {
        return _slots[indexFor(hash, isEntry)];
    }

    boost::container::small_vector<std::uint32_t, 32> _slots;  ///< a power of two, at most half of them in use;
                                                               ///< in place for few entries, as small robots have
};

}  // namespace Varo::Model

#endif
