#ifndef VARO_CORE_REQUIRE_HPP
#define VARO_CORE_REQUIRE_HPP

#include <stdexcept>
#include <string>

namespace Sim {

/// Ends the load with `message` and the name right behind it, unless `known`.
inline void require(bool known, char const* message, std::string const& name = {})
{
    if (!known) {
        throw std::runtime_error(message + name);
    }
}

}  // namespace Sim

#endif
