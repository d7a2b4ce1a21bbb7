#include "core/name_scan.hpp"

namespace Sim {

/// Block by block, without branches inside one, so that compilers make it compare many at a time.
std::size_t NameScan::next(Hashes const& hashes, Hash wanted, std::size_t at)
{
    constexpr std::size_t block = 32;
    std::size_t const size = hashes.size();
    Hash const* const all = hashes.data();
    for (; at + block <= size; at += block) {
        Hash found = 0;
        for (std::size_t i = 0; i < block; ++i) {
            found = static_cast<Hash>(found | (all[at + i] == wanted ? 1U : 0U));
        }
        if (found != 0) {
            break;
        }
    }
    while (at < size && all[at] != wanted) {
        ++at;
    }
    return at;
}

}  // namespace Sim
