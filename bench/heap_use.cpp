#include "heap_use.hpp"

#include <atomic>

#include <malloc.h>

// The C library's own, under the names that it has for those who stand before it.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);

namespace {

std::atomic<std::size_t> count = 0;

}  // namespace

extern "C" void* malloc(std::size_t size) noexcept
{
    count.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

extern "C" void* calloc(std::size_t items, std::size_t size) noexcept
{
    count.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(items, size);
}

extern "C" void* realloc(void* memory, std::size_t size) noexcept
{
    count.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}

namespace Bench {

std::size_t allocationCount()
{
    return count;
}

std::size_t heapBytes()
{
    auto const info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

}  // namespace Bench
