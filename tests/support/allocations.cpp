#include "allocations.hpp"

#include <cstdlib>
#include <limits>
#include <new>
#include <utility>

namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

thread_local std::size_t count = 0;
thread_local std::ptrdiff_t live = 0;
thread_local std::size_t failing = never;  // the number of the allocation that fails
thread_local bool hasFailed = false;

/// Null when this one is to fail.
void* counted(void* (*allocate)(std::size_t, std::size_t), std::size_t size, std::size_t alignment)
{
    if (count++ == failing) {
        hasFailed = true;
        return nullptr;
    }
    void* const memory = allocate(size == 0 ? 1 : size, alignment);
    live += memory == nullptr ? 0 : 1;
    return memory;
}

void* plain(std::size_t size, std::size_t /*alignment*/)
{
    return std::malloc(size);
}

void* aligned(std::size_t size, std::size_t alignment)
{
    return std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
}

void* orThrow(void* memory)
{
    return memory != nullptr ? memory : throw std::bad_alloc();
}

}  // namespace

// As the standard library has them, but counted; its other forms call these, save the one that does not throw when a
// sanitizer has one of its own.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    return orThrow(counted(plain, size, 0));
}

[[gnu::noinline]] void* operator new(std::size_t size, std::nothrow_t const&) noexcept
{
    return counted(plain, size, 0);
}

[[gnu::noinline]] void* operator new(std::size_t size, std::align_val_t alignment)
{
    return orThrow(counted(aligned, size, static_cast<std::size_t>(alignment)));
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    Tests::deallocate(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    Tests::deallocate(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::align_val_t) noexcept
{
    Tests::deallocate(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    Tests::deallocate(memory);
}

namespace Tests {

std::size_t allocations()
{
    return count;
}

std::ptrdiff_t liveAllocations()
{
    return live;
}

void failAllocationAfter(std::size_t others)
{
    hasFailed = false;
    failing = count + others;
}

bool endFailing()
{
    failing = never;
    return std::exchange(hasFailed, false);
}

void* allocate(std::size_t size)
{
    return counted(plain, size, 0);
}

void deallocate(void* memory)
{
    live -= memory == nullptr ? 0 : 1;
    std::free(memory);
}

}  // namespace Tests
