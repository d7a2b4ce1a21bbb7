#ifndef VARO_CORE_ELEMENT_ARENA_HPP
#define VARO_CORE_ELEMENT_ARENA_HPP

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

namespace Sim {

/// The memory of one model's elements: one allocation serves many, and all of it is freed at once. It lives as long as
/// the last shared or weak pointer to an element in it, such as that of a copied actuator. Not safe for threads: one
/// thread builds a model.
class ElementArena {
public:
    ElementArena() : _memory(new Memory) {}

    template <class T, class... Arguments>
    boost::shared_ptr<T> make(Arguments&&... arguments) const
    {
        return boost::allocate_shared<T>(Allocator<T>(*_memory), std::forward<Arguments>(arguments)...);
    }

private:
    /// Cuts pieces off chunks of one size: chunks that grow, as those of the standard library do, would leave a good
    /// part of the last one unused.
    class Memory : public boost::intrusive_ref_counter<Memory> {
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

    private:
        static constexpr std::size_t chunkSize = 8192;

        std::vector<std::unique_ptr<std::byte[]>> _chunks;
        void* _free = nullptr;
        std::size_t _left = 0;  ///< bytes from there to the end of the chunk
    };

    /// Every piece counts as one that refers to the memory, whoever holds a copy of its allocator.
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
            intrusive_ptr_add_ref(_memory);
            return static_cast<T*>(piece);
        }
        void deallocate(T* /*piece*/, std::size_t /*count*/) { intrusive_ptr_release(_memory); }  // the last frees all

        Memory& memory() const { return *_memory; }
        bool operator==(Allocator const& other) const { return _memory == other._memory; }
        bool operator!=(Allocator const& other) const { return _memory != other._memory; }

    private:
        Memory* _memory;
    };

    boost::intrusive_ptr<Memory> _memory;
};

}  // namespace Sim

#endif
