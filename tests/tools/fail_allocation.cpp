#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdlib>

#include <dlfcn.h>

namespace {

using Main = int (*)(int, char**, char**);

std::atomic<long> left{-1};
Main toolMain = nullptr;

template <class Function>
Function original(char const* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int countingMain(int argumentCount, char** arguments, char** environment)
{
    char const* const number = std::getenv("FAIL_ALLOCATION");
    left = number == nullptr ? -1 : std::strtol(number, nullptr, 10);
    return toolMain(argumentCount, arguments, environment);
}

}  // namespace

// To be preloaded into the tool: from main on, the allocation of the number $FAIL_ALLOCATION fails.
extern "C" void* malloc(std::size_t size)
{
    static auto const allocate = original<void* (*)(std::size_t)>("malloc");
    if (left > 0 && --left == 0) {
        errno = ENOMEM;
        return nullptr;
    }
    return allocate(size);
}

extern "C" int __libc_start_main(Main main, int argumentCount, char** arguments, Main init, void (*finish)(),
                                 void (*finishLoader)(), void* stackEnd)
{
    using Start = int (*)(Main, int, char**, Main, void (*)(), void (*)(), void*);
    toolMain = main;
    return original<Start>("__libc_start_main")(countingMain, argumentCount, arguments, init, finish, finishLoader,
                                                stackEnd);
}
