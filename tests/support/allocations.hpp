#ifndef VARO_TESTS_ALLOCATIONS_HPP
#define VARO_TESTS_ALLOCATIONS_HPP

#include <cstddef>

namespace Tests {

/// How often this thread has called `operator new`, which allocations.cpp replaces for the whole program.
std::size_t allocations();

template <class Action>
std::size_t allocationsOf(Action const& action)
{
    std::size_t const before = allocations();
    action();
    return allocations() - before;
}

}  // namespace Tests

#endif
