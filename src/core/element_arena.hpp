#ifndef VARO_CORE_ELEMENT_ARENA_HPP
#define VARO_CORE_ELEMENT_ARENA_HPP

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

namespace Sim {

/// The memory of one model's elements: one allocation serves many, and all of it is freed at once. It lives as long as
/// the last shared or weak pointer to an element in it, such as that of a copied actuator. Not safe for threads: one
/// thread builds a model.
class ElementArena {
public:
    ElementArena() : _memory(new Memory) {}
    ElementArena(ElementArena const&) = delete;
    ElementArena& operator=(ElementArena const&) = delete;
    ~ElementArena() { _memory->endBuilding(); }

    template <class T, class... Arguments>
    boost::shared_ptr<T> make(Arguments&&... arguments) const
    {
        void* const place = _memory->allocate(sizeof(T), alignof(T));
        T* const made = ::new (place) T(std::forward<Arguments>(arguments)...);
        // Not boost::allocate_shared, which counts up and down as it passes the pointer on.
        return boost::shared_ptr<T>(
            made, [](T* element) { element->~T(); }, Allocator<T>(*_memory));
    }

private:
    /// Cuts pieces off chunks of one size: chunks that grow, as those of the standard library do, would leave a good
    /// part of the last one unused. Ends with the last user.
    class Memory {
    public:
        void* allocate(std::size_t size, std::size_t alignment)
        {
            if (std::align(alignment, size, _free, _left) == nullptr) {
                _left = std::max(chunkSize, size + alignment);
                _chunks.push_back(std::make_unique<std::byte[]>(_left));
                _free = _chunks.back().get();
                std::align(alignment, size, _free, _left);
            }
            void* const piece = _free;
            _free = static_cast<std::byte*>(_free) + size;
            _left -= size;
            return piece;
        }

        // While a model is built, users are counted without atomics: the builder stands for more than there will ever
        // be.
        void addUser() { ++_added; }
        void removeUser() { remove(1); }
        void endBuilding() { remove(builder - _added); }

    private:
        void remove(std::uint64_t users)
        {
            if (_users.fetch_sub(users, std::memory_order_acq_rel) == users) {
                delete this;
            }
        }

        static constexpr std::size_t chunkSize = 8192;
        static constexpr std::uint64_t builder = std::uint64_t{1} << 63U;

        std::vector<std::unique_ptr<std::byte[]>> _chunks;
        void* _free = nullptr;
        std::size_t _left = 0;  ///< bytes from there to the end of the chunk
        std::uint64_t _added = 0;
        std::atomic<std::uint64_t> _users = builder;
    };

    /// Of what counts the references to an element. As long as there are any, the element's memory is in use.
    template <class T>
    class Allocator {
    public:
        using value_type = T;

        explicit Allocator(Memory& memory) : _memory(&memory) {}
        template <class Other>
        Allocator(Allocator<Other> const& other)  // NOLINT(google-explicit-constructor): the allocator requirements
            : _memory(&other.memory())
        {}

        T* allocate(std::size_t count)
        {
            void* const piece = _memory->allocate(count * sizeof(T), alignof(T));
            _memory->addUser();
            return static_cast<T*>(piece);
        }
        void deallocate(T* /*piece*/, std::size_t /*count*/) { _memory->removeUser(); }  // the last frees all

        Memory& memory() const { return *_memory; }
        bool operator==(Allocator const& other) const { return _memory == other._memory; }
        bool operator!=(Allocator const& other) const { return _memory != other._memory; }

    private:
        Memory* _memory;
    };

    Memory* _memory;  ///< which frees itself
};

}  // namespace Sim

#endif
