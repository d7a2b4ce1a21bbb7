// What one load costs, apart from time: allocations and heap; and, when callgrind counts them, instructions.
//
//     load_costs LOADER JOINTS       prints allocations and bytes on the heap, per joint
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "heap_use.hpp"
#include "loaders.hpp"

/// What callgrind is told to count, by this name: a load and what it takes to drop it.
extern "C" [[gnu::noinline]] void measuredLoad(Bench::Loader const& loader, std::string const& text)
{
    loader.load(text);
}

namespace {

void measure(Bench::Loader const& loader, int joints)
{
    std::string const text = loader.textOf(joints);
    loader.load(text);  // what only the first one does is left out
    std::size_t const bytes = Bench::heapBytes();
    std::size_t const allocations = Bench::allocationCount();
    auto const model = loader.load(text);
    if (model == nullptr) {
        throw std::runtime_error("the text is refused");
    }
    std::printf("%.2f %.1f\n", static_cast<double>(Bench::allocationCount() - allocations) / joints,
                static_cast<double>(Bench::heapBytes() - bytes) / joints);
    measuredLoad(loader, text);
}

}  // namespace

int main(int argc, char** argv)
{
    for (Bench::Loader const& loader : Bench::loaders()) {
        if (argc == 3 && loader.name == argv[1]) {
            measure(loader, std::atoi(argv[2]));
            return 0;
        }
    }
    std::fprintf(stderr, "usage: load_costs LOADER JOINTS\n");
    return 2;
}
