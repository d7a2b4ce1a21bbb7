#ifndef VARO_CORE_ELEMENT_ARENA_HPP
#define VARO_CORE_ELEMENT_ARENA_HPP

#include <cstddef>
#include <memory_resource>
#include <utility>

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
        return boost::allocate_shared<T>(Allocator<T>(_memory), std::forward<Arguments>(arguments)...);
    }

private:
    class Memory : public boost::intrusive_ref_counter<Memory> {
    public:
        void* allocate(std::size_t size, std::size_t alignment) { return _pieces.allocate(size, alignment); }

    private:
        std::pmr::monotonic_buffer_resource _pieces;
    };

    template <class T>
    class Allocator {
    public:
        using value_type = T;

        explicit Allocator(boost::intrusive_ptr<Memory> memory) : _memory(std::move(memory)) {}
        template <class Other>
        Allocator(Allocator<Other> const& other)  // NOLINT(google-explicit-constructor): the allocator requirements
            : _memory(other.memory())
        {}

        T* allocate(std::size_t count) { return static_cast<T*>(_memory->allocate(count * sizeof(T), alignof(T))); }
        void deallocate(T* /*piece*/, std::size_t /*count*/) {}  // with all others

        boost::intrusive_ptr<Memory> const& memory() const { return _memory; }
        bool operator==(Allocator const& other) const { return _memory == other._memory; }
        bool operator!=(Allocator const& other) const { return _memory != other._memory; }

    private:
        boost::intrusive_ptr<Memory> _memory;
    };

    boost::intrusive_ptr<Memory> _memory;
};

}  // namespace Sim

#endif
