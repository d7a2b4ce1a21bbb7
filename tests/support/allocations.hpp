#ifndef VARO_TESTS_ALLOCATIONS_HPP
#define VARO_TESTS_ALLOCATIONS_HPP

#include <cstddef>

/// What this thread allocates by `operator new`, which allocations.cpp replaces for the whole program, and by
/// `allocate`, where a library takes that instead of `std::malloc`.
namespace Tests {

/// How often it has allocated.
std::size_t allocations();

/// How many of its allocations it has not freed.
std::ptrdiff_t liveAllocations();

/// The next allocation but `count` fails, and those behind it work again; 0 stands for the very next one.
void failAllocationAfter(std::size_t count);
/// Whether that has happened. From then on, all work.
bool endFailing();

/// As std::malloc and std::free.
void* allocate(std::size_t size);
void deallocate(void* memory);

template <class Action>
std::size_t allocationsOf(Action const& action)
{
    std::size_t const before = allocations();
    action();
    return allocations() - before;
}

}  // namespace Tests

#endif
