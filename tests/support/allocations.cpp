#include "allocations.hpp"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t count = 0;

}  // namespace

// Counted, and otherwise as the standard library does it.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++count;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace Tests {

std::size_t allocations()
{
    return count;
}

}  // namespace Tests
