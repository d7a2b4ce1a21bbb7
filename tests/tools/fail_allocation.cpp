#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdlib>

#include <dlfcn.h>

namespace {

std::atomic<long> left{-1};

/// Counts what the program itself allocates, once everything is loaded.
[[gnu::constructor]] void begin()
{
    char const* const number = std::getenv("FAIL_ALLOCATION");
    left = number == nullptr ? -1 : std::strtol(number, nullptr, 10);
}

}  // namespace

// To be preloaded into the tool: the allocation of the number $FAIL_ALLOCATION fails.
extern "C" void* malloc(std::size_t size)
{
    static auto const original = reinterpret_cast<void* (*)(std::size_t)>(dlsym(RTLD_NEXT, "malloc"));
    if (left > 0 && --left == 0) {
        errno = ENOMEM;
        return nullptr;
    }
    return original(size);
}
