// Preloaded into a program, writes the greatest number of bytes that it has on the heap at once, at its end, to the
// file that VARO_HEAP_PEAK names. Unlike what the system holds for a process, that is the same in every run.
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include <malloc.h>

// The C library's own, under the names that it has for those who stand before it.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);
extern "C" void* __libc_memalign(std::size_t alignment, std::size_t size);
extern "C" void __libc_free(void* memory);

namespace {

std::atomic<std::size_t> current = 0;
std::atomic<std::size_t> peak = 0;

void* noteTaken(void* memory)
{
    std::size_t const now = current += malloc_usable_size(memory);
    for (std::size_t before = peak; before < now && !peak.compare_exchange_weak(before, now);) {
    }
    return memory;
}

void noteGiven(void* memory)
{
    current -= malloc_usable_size(memory);
}

struct AtExit {
    ~AtExit()
    {
        char const* const file = std::getenv("VARO_HEAP_PEAK");
        std::size_t const most = peak;
        if (std::FILE* const out = file == nullptr ? nullptr : std::fopen(file, "w")) {
            std::fprintf(out, "%zu\n", most);
            std::fclose(out);
        }
    }
} atExit;

}  // namespace

extern "C" void* malloc(std::size_t size) noexcept
{
    return noteTaken(__libc_malloc(size));
}

extern "C" void* calloc(std::size_t items, std::size_t size) noexcept
{
    return noteTaken(__libc_calloc(items, size));
}

extern "C" void* realloc(void* memory, std::size_t size) noexcept
{
    noteGiven(memory);
    void* const larger = __libc_realloc(memory, size);
    return noteTaken(larger == nullptr && size > 0 ? memory : larger), larger;
}

extern "C" void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return noteTaken(__libc_memalign(alignment, size));
}

extern "C" int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept
{
    *memory = noteTaken(__libc_memalign(alignment, size));
    return *memory == nullptr ? ENOMEM : 0;
}

extern "C" void free(void* memory) noexcept
{
    noteGiven(memory);
    __libc_free(memory);
}
