#ifndef VARO_FUZZ_FUZZING_HPP
#define VARO_FUZZ_FUZZING_HPP

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

/// What the harnesses share; each has its own `LLVMFuzzerTestOneInput`, which libFuzzer calls.
namespace Fuzz {

inline std::string textOf(std::uint8_t const* data, std::size_t size)
{
    return {reinterpret_cast<char const*>(data), size};
}

/// Ends the run with a finding when what has to hold does not.
inline void demand(bool holds, char const* what)
{
    if (!holds) {
        std::fprintf(stderr, "This does not hold: %s\n", what);
        std::abort();
    }
}

}  // namespace Fuzz

#endif
